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
/// - When an operation ends because another object failed, the code is that object's
///   getLastError().
/// - Getters deliver through a reference argument and leave it alone when they fail.
/// - A failing operation leaves the object as it was. Operations of several steps that stop
///   part-way (`copyFrom` and others that say so) keep what was done before the failure.
/// - Data is passed by copy: setters copy in, getters copy out, no object keeps a caller's pointer.
/// - What is handed out through a pointer argument belongs to the caller, who deletes it. Such an
///   argument must point to a null pointer, else #ZelData_InvalidArgument.
/// - When memory runs out the code is #ZelData_OutOfMemory, and the object stays usable. A caption
///   item lets `std::bad_alloc` through instead.
/// - When an implementation of an interface that the caller wrote throws, `std::bad_alloc` counts
///   as exhausted memory and any other exception gives #ZelData_InternalError. None leaves the
///   library.
/// - An item whose class the caller wrote may change the collection that holds it, even while the
///   collection calls it. An operation that only reads continues with the items that it began with;
///   one that changes the items returns #ZelData_InternalError, and the item's change stays.
/// - Distinct objects may be used from distinct threads; one object serves one thread at a time.
/// - With libstdc++ on glibc, a thread may be cancelled (`pthread_cancel`, deferred) or exit
///   (`pthread_exit`) inside an operation: the stack unwinds, and what the operation obtained is
///   released. The operation stores no code, its finished steps have stored theirs, and the object
///   is left as it would be by a failure of the step that did not return. Asynchronous cancellation
///   is not supported. With another standard library, no cancellation inside an operation is
///   supported.
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

    /// Takes over the last error of @p object as it is, even when that is #ZelData_Ok.
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
