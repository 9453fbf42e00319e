/// @file
/// What the XMP formatters of all data sets have in common.

#ifndef ZELINTERCHANGEDATA_SETS_XMPFORMATTER_H
#define ZELINTERCHANGEDATA_SETS_XMPFORMATTER_H

#include "ZelInterchangeData/i_ZelDataFormatterBase.h"
#include "sets/ReplaceContents.h"
#include "util/Ending.h"
#include "util/Guard.h"
#include "util/LargePages.h"

#include <cstddef>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <utility>

namespace ZelInterchangeData {

/// Holds a copy of the @p Data to write; refuses to read. @p Own is the class of the copy.
template <class Interface, class Data, class Own>
class XmpFormatter : public Interface {
public:
    ZelDataResult_tags readString(const std::string& /*text*/, ZelDataFormatType_tags format,
                                  bool /*flag*/) override
    {
        return this->store(notImplementedIn(format));
    }

    ZelDataResult_tags readFile(const std::string& /*path*/, ZelDataFormatType_tags format) override
    {
        return this->store(notImplementedIn(format));
    }

protected:
    /// #ZelData_InternalError for a format other than XMP, otherwise #ZelData_NotImplemented.
    static ZelDataResult_tags notImplementedIn(ZelDataFormatType_tags format) noexcept
    {
        return format == ZelDataFormat_Xmp ? ZelData_NotImplemented : ZelData_InternalError;
    }

    /// Replaces the held copy, which the first call creates, with a copy of @p source.
    ZelDataResult_tags hold(const Data& source, ZelDataResult_tags (Data::*clear)())
    {
        return this->store(guarded([&] {
            if (held_ == nullptr) held_.reset(new (std::nothrow) Own);
            if (held_ == nullptr) return ZelData_OutOfMemory;
            Data& copy = *held_;
            return replaceContents(copy, clear, source) ? ZelData_Ok : copy.getLastError();
        }));
    }

    /// Null until the first hold().
    const Own* held() const noexcept { return held_.get(); }

private:
    std::unique_ptr<Own> held_;
};

/// An XMP formatter that writes one track of the packet. @p Formatter is the class derived from it,
/// which has two more operations; call them only if a set is held:
/// - `std::optional<std::size_t> estimateTrack() const` returns the approximate size of the track
///   in bytes; none for a set without items, which has no track.
/// - `void appendTrack(std::string& packet) const` appends the track. Call it after checkTrack(),
///   and only for a set with items.
///
/// The document calls these directly, because inserting a track from a string would copy it once
/// more.
template <class Interface, class Data, class Own, class Formatter>
class XmpTrackFormatter : public XmpFormatter<Interface, Data, Own> {
public:
    /// If the held set cannot be written, ends with the code that writing it would return.
    Ending checkTrack() const { return {}; }

    ZelDataResult_tags writeString(std::string& out, ZelDataFormatType_tags format,
                                   bool /*flag*/) const override
    {
        return this->store(guarded([&] {
            if (format != ZelDataFormat_Xmp) return ZelData_InternalError;
            if (this->held() == nullptr) return ZelData_InvalidData;
            const auto& formatter = static_cast<const Formatter&>(*this);
            if (const Ending ending = formatter.checkTrack()) return *ending;
            const auto size = formatter.estimateTrack();
            if (!size) return ZelData_Ok; // leaves the text unchanged
            std::string track;
            reserveAtEnd(track, *size);
            formatter.appendTrack(track);
            out = std::move(track);
            return ZelData_Ok;
        }));
    }

    /// Deliberate: writes the string first and then refuses; otherwise, it would not return the
    /// code of a failed writeString().
    ZelDataResult_tags writeFile(const std::string& /*path*/, ZelDataFormatType_tags format,
                                 bool /*flag*/) const override
    {
        return this->store(guarded([&] {
            if (format == ZelDataFormat_Xmp) {
                std::string scratch;
                const auto written = this->writeString(scratch, format, false);
                if (failed(written)) return written;
            }
            return this->notImplementedIn(format);
        }));
    }
};

} // namespace ZelInterchangeData

#endif
