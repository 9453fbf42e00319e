#include "core/FileStreams.h"

#include <algorithm>
#include <array>
#include <cwchar>
#ifdef _WIN32
#include <filesystem>
#endif
#include <locale>
#include <type_traits>

namespace ZelInterchangeData {

namespace {

/// Widens a narrow character to the value of its byte. The standard facet asks the C library, whose
/// result for bytes above 0x7F depends on the locale.
class ByteCharacters : public std::ctype<wchar_t> {
public:
    ~ByteCharacters() override = default;

protected:
    wchar_t do_widen(char narrow) const override
    {
        return static_cast<wchar_t>(static_cast<unsigned char>(narrow));
    }

    const char* do_widen(const char* first, const char* last, wchar_t* out) const override
    {
        std::transform(first, last, out, [this](char narrow) { return do_widen(narrow); });
        return last;
    }
};

using Conversion = std::codecvt<wchar_t, char, std::mbstate_t>;

/// Converts each wide character up to 255 to one byte of the file.
class ByteConversion : public Conversion {
public:
    ~ByteConversion() override = default;

    /// From now on, discards all characters.
    void drop() const { isDropping_ = true; }

protected:
    result do_out(std::mbstate_t& /*state*/, const wchar_t* from, const wchar_t* fromEnd,
                  const wchar_t*& fromNext, char* to, char* toEnd, char*& toNext) const override
    {
        if (isDropping_) {
            fromNext = fromEnd;
            toNext = to;
            return ok;
        }
        for (fromNext = from, toNext = to; fromNext != fromEnd; ++fromNext, ++toNext) {
            // wchar_t is signed on some systems: a negative one is above 255, too.
            if (static_cast<std::make_unsigned_t<wchar_t>>(*fromNext) > 255) return error;
            if (toNext == toEnd) return partial;
            *toNext = static_cast<char>(static_cast<unsigned char>(*fromNext));
        }
        return ok;
    }

    result do_in(std::mbstate_t& /*state*/, const char* from, const char* fromEnd,
                 const char*& fromNext, wchar_t* to, wchar_t* toEnd,
                 wchar_t*& toNext) const override
    {
        for (fromNext = from, toNext = to; fromNext != fromEnd; ++fromNext, ++toNext) {
            if (toNext == toEnd) return partial;
            *toNext = static_cast<wchar_t>(static_cast<unsigned char>(*fromNext));
        }
        return ok;
    }

    result do_unshift(std::mbstate_t& /*state*/, char* to, char* /*toEnd*/,
                      char*& toNext) const override
    {
        toNext = to;
        return noconv;
    }

    int do_length(std::mbstate_t& /*state*/, const char* from, const char* end,
                  std::size_t max) const override
    {
        return static_cast<int>(std::min(max, static_cast<std::size_t>(end - from)));
    }

    int do_encoding() const noexcept override { return 1; }
    int do_max_length() const noexcept override { return 1; }
    bool do_always_noconv() const noexcept override { return false; }

private:
    mutable bool isDropping_ = false; // facets are const; each stream has its own
};

/// A facet that tells its maker when it is deleted.
template <class Facet>
class WatchedFacet : public Facet {
public:
    explicit WatchedFacet(bool& isDeleted) : isDeleted_(&isDeleted) {}
    ~WatchedFacet() override
    {
        if (isDeleted_ != nullptr) *isDeleted_ = true;
    }
    WatchedFacet(const WatchedFacet&) = delete;
    WatchedFacet& operator=(const WatchedFacet&) = delete;

    void stopTelling() noexcept { isDeleted_ = nullptr; }

private:
    bool* isDeleted_;
};

/// @p base with a @p Facet in place of its own. If the locale cannot be created, deletes the facet,
/// unless the standard library has done so: some do.
template <class Facet>
std::locale withFacet(const std::locale& base)
{
    bool isDeleted = false;
    const auto deleteOnce = [&isDeleted](WatchedFacet<Facet>* facet) {
        if (!isDeleted) delete facet;
    };
    std::unique_ptr<WatchedFacet<Facet>, decltype(deleteOnce)> facet(
        new WatchedFacet<Facet>(isDeleted), deleteOnce);
    std::locale combined(base, facet.get());
    facet.release()->stopTelling(); // the locale owns it from here on
    return combined;
}

std::locale byteLocale()
{
    return withFacet<ByteConversion>(withFacet<ByteCharacters>(std::locale::classic()));
}

#ifdef _WIN32

/// Opens the file at @p path. Opens nothing if @p path is not UTF-8.
template <class Stream>
void openFile(Stream& stream, const std::string& path)
{
    std::filesystem::path systemPath;
    try {
        systemPath = std::filesystem::u8path(path);
    } catch (const std::system_error&) {
        return;
    }
    stream.open(systemPath, std::ios::binary);
}

#else

template <class Stream>
void openFile(Stream& stream, const std::string& path)
{
    stream.open(path, std::ios::binary);
}

#endif

/// The buffer of a stream, which may otherwise allocate one after opening the file. A base class, so that
/// it outlives the stream, which is built after it.
struct StreamBuffer {
    std::array<wchar_t, 4096> buffer{};
};

/// A file stream that has its buffer and locale before it opens the file, which empties the file.
template <class Stream>
class ByteFileStream : private StreamBuffer, public Stream {
public:
    explicit ByteFileStream(const std::string& path)
    {
        // Deliberate: libc++ frees its own buffer twice if an allocation for the new one is refused. For a
        // buffer of one character it allocates nothing, and has no own one afterwards.
        for (const std::size_t size : {std::size_t{1}, buffer.size()})
            this->rdbuf()->pubsetbuf(buffer.data(), static_cast<std::streamsize>(size));
        this->imbue(byteLocale());
        // The system ends a path at its first zero byte, so it would open another file.
        if (path.find('\0') == std::string::npos) openFile<Stream>(*this, path);
    }

    /// Discards what a failed or cancelled write has left: a full pipe would block the thread
    /// again.
    ~ByteFileStream() override
    {
        if (!this->bad()) return;
        const std::locale locale = this->rdbuf()->getloc();
        const auto& conversion = std::use_facet<Conversion>(locale);
        if (const auto* own = dynamic_cast<const ByteConversion*>(&conversion)) own->drop();
    }
    ByteFileStream(const ByteFileStream&) = delete;
    ByteFileStream& operator=(const ByteFileStream&) = delete;
};

} // namespace

std::unique_ptr<std::wofstream> createWofstreamWithFile(const std::string& path)
{
    return std::make_unique<ByteFileStream<std::wofstream>>(path);
}

std::unique_ptr<std::wifstream> createWifstreamWithFile(const std::string& path)
{
    return std::make_unique<ByteFileStream<std::wifstream>>(path);
}

} // namespace ZelInterchangeData
