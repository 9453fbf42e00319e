/// @file
/// Writes a table of contents as a track.

#ifndef ZELINTERCHANGEDATA_TOC_ZELDATAXMPTOCFORMATTER_H
#define ZELINTERCHANGEDATA_TOC_ZELDATAXMPTOCFORMATTER_H

#include "ZelInterchangeData/i_ZelDataToc.h"
#include "ZelInterchangeData/i_ZelDataTocFormatter.h"
#include "sets/XmpFormatter.h"
#include "toc/ZelDataToc.h"

#include <string>
#include <vector>

namespace ZelInterchangeData {

class i_ZelDataTocItem;

/// Replaces @p out with the titles of @p item in the languages of @p languages as markup and skips
/// languages without a title. Returns whether every language had one. The track does not use it: a
/// marker has a title in only one language. Throws `std::bad_alloc` if memory runs out, even if the
/// item returns this as a code.
bool buildTocList(std::vector<std::string> languages, const i_ZelDataTocItem& item,
                  std::string& out);

/// Writes the table-of-contents track: its properties, and one marker for each entry.
class ZelDataXmpTocFormatter : public XmpTrackFormatter<i_ZelDataTocFormatter, i_ZelDataToc,
                                                        ZelDataToc, ZelDataXmpTocFormatter> {
public:
    ZelDataXmpTocFormatter();
    ~ZelDataXmpTocFormatter() override;

    ZelDataResult_tags setToc(const i_ZelDataToc& toc) override;
    ZelDataResult_tags getToc(i_ZelDataToc& toc) const override;

    std::optional<std::size_t> estimateTrack() const;
    void appendTrack(std::string& packet) const;
};

} // namespace ZelInterchangeData

#endif
