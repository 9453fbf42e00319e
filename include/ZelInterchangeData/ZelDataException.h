/// @file
/// The exception that ZELDataCreator throws.

#ifndef ZELINTERCHANGEDATA_ZELDATAEXCEPTION_H
#define ZELINTERCHANGEDATA_ZELDATAEXCEPTION_H

#include "ZelInterchangeData/ZelDataExport.h"

#include <exception>
#include <string>

namespace ZelInterchangeData {

/// Only ZELDataCreator::createInterchangeData() throws it, if memory runs out.
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
