/// @file
/// The root of every interface: the code of the last operation, and the rules that all objects
/// share.

#ifndef ZELINTERCHANGEDATA_I_ZELDATARESULT_H
#define ZELINTERCHANGEDATA_I_ZELDATARESULT_H

#include "ZelInterchangeData/ZelDataExport.h"
#include "ZelInterchangeData/ZelDataResult_tags.h"

namespace ZelInterchangeData {

/// Keeps the code of the object's last operation.
///
/// These rules hold for every interface that derives from this one; an operation that departs from
/// them says so in its own comment.
/// - An operation returns a code and stores the same code as the object's last error. Const
///   operations store it too. Static functions store nothing.
/// - If an operation fails because another object failed, it returns that object's getLastError().
/// - Getters store their value in a reference argument and leave it unchanged if they fail.
/// - An operation that fails leaves the object unchanged. Operations of several steps (`copyFrom`
///   and others that say so) keep what they did before the failure.
/// - Where `long` has 32 bits, as on Windows and on 32-bit processors, 4294967295 is the largest
///   `unsigned long`.
/// - Setters and getters copy data; no object keeps a caller's pointer.
/// - The caller owns and deletes what an operation returns through a pointer argument. The argument
///   must point to a null pointer; otherwise, the operation returns #ZelData_InvalidArgument.
/// - If memory runs out, an operation returns #ZelData_OutOfMemory, and the object stays usable. A
///   caption item throws `std::bad_alloc` instead.
/// - If the caller's implementation of an interface throws, the library treats `std::bad_alloc` as
///   if memory had run out, and returns #ZelData_InternalError for any other exception.
/// - An item whose class the caller wrote may change the collection that holds it, even while the
///   collection calls it. An operation that only reads continues with the items that it started
///   with; one that changes the items returns #ZelData_InternalError, and the item's change stays.
/// - You can use different objects in different threads. Use one object in one thread at a time.
/// - With libstdc++ on glibc, a thread may be cancelled (`pthread_cancel`, deferred) or exit
///   (`pthread_exit`) inside an operation: the stack unwinds, and the operation releases what it
///   acquired. It stores no code; its completed steps have stored theirs. The object is in the same
///   state as after a failure of the interrupted step. Asynchronous cancellation is not supported.
///   Neither is any cancellation inside an operation with another standard library.
///
/// The order of the virtual operations of every interface is its binary interface and never
/// changes.
class ZELINTERCHANGEDATA_API i_ZelDataResult {
public:
    /// The last error starts as #ZelData_Ok.
    ZELINTERCHANGEDATA_INLINE i_ZelDataResult() = default;

    /// Stores @p code as the last error.
    virtual void setLastError(ZelDataResult_tags code) const;
    virtual ~i_ZelDataResult();
    /// The code of the most recent operation that stored one.
    virtual ZelDataResult_tags getLastError() const;

protected:
    /// Copies the last error, too. For implementations that can be copied.
    ZELINTERCHANGEDATA_INLINE i_ZelDataResult(const i_ZelDataResult&) = default;
    /// Copies the last error, too. For implementations that can be copied.
    ZELINTERCHANGEDATA_INLINE i_ZelDataResult& operator=(const i_ZelDataResult&) = default;

    /// Stores @p code as the last error and returns it, for `return store(...)`.
    [[nodiscard]] ZELINTERCHANGEDATA_INLINE ZelDataResult_tags
    store(ZelDataResult_tags code) const noexcept
    {
        lastError_ = code;
        return code;
    }

    /// Stores the last error of @p object, even #ZelData_Ok, and returns it.
    [[nodiscard]] ZELINTERCHANGEDATA_INLINE ZelDataResult_tags
    storeFrom(const i_ZelDataResult& object) const
    {
        return store(object.getLastError());
    }

private:
    mutable ZelDataResult_tags lastError_ = ZelData_Ok;
};

} // namespace ZelInterchangeData

#endif
