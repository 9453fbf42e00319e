/// @file
/// The one exception of the library.

#ifndef ZELINTERCHANGEDATA_ZELDATAEXCEPTION_H
#define ZELINTERCHANGEDATA_ZELDATAEXCEPTION_H

#include "ZelInterchangeData/ZelDataExport.h"

#include <exception>
#include <string>

namespace ZelInterchangeData {

/// Thrown by ZELDataCreator::createInterchangeData() alone, when no document could be made. Every
/// other failure is reported as a result code.
class ZELINTERCHANGEDATA_API ZelDataException : public std::exception {
public:
    /// Keeps a copy of @p message.
    explicit ZelDataException(const std::string& message);
    /// Copies the message, too.
    ZELINTERCHANGEDATA_INLINE ZelDataException(const ZelDataException&) = default;
    /// Copies the message, too.
    ZELINTERCHANGEDATA_INLINE ZelDataException& operator=(const ZelDataException&) = default;
    ~ZelDataException() override;

    /// The message; valid as long as this object lives.
    const char* what() const noexcept override;

private:
    std::string message_;
};

} // namespace ZelInterchangeData

#endif
