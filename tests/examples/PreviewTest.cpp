/// @file
/// The page that shows a packet in a browser. The page's own tests use it in one.

#include "Preview.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

using publish::previewPage;

namespace {

/// What @p page has in the element with @p id.
std::string embedded(const std::string& page, const std::string& id)
{
    const std::string before = "id=\"" + id + "\">";
    const std::size_t begin = page.find(before) + before.size();
    return page.substr(begin, page.find("</script>", begin) - begin);
}

std::string embedded(std::string_view packet)
{
    return embedded(previewPage(packet, "report"), "packet");
}

TEST(PreviewPage, HoldsThePacketInBase64)
{
    EXPECT_EQ(embedded(""), "");
    EXPECT_EQ(embedded("f"), "Zg==");
    EXPECT_EQ(embedded("fo"), "Zm8=");
    EXPECT_EQ(embedded("foo"), "Zm9v");
    EXPECT_EQ(embedded("foobar"), "Zm9vYmFy");
}

TEST(PreviewPage, HoldsEveryByte)
{
    EXPECT_EQ(embedded(std::string_view("\0\xFF\xFE", 3)), "AP/+");
    EXPECT_EQ(embedded("</script><img onerror=\"x\">"), "PC9zY3JpcHQ+PGltZyBvbmVycm9yPSJ4Ij4=");
}

TEST(PreviewPage, HoldsTheReportInBase64)
{
    EXPECT_EQ(embedded(previewPage("packet", "</script>"), "report"), "PC9zY3JpcHQ+");
    EXPECT_EQ(embedded(previewPage("packet", ""), "report"), "");
}

TEST(PreviewPage, IsCompleteAndInAscii)
{
    const std::string page = previewPage("\xC3\xA4", "\xFF");
    EXPECT_EQ(page.rfind("<!DOCTYPE html>\n", 0), 0U);
    EXPECT_EQ(page.substr(page.size() - 8), "</html>\n");
    EXPECT_TRUE(std::all_of(page.begin(), page.end(), [](char character) {
        return character == '\n' || (character >= ' ' && character <= '~');
    }));
}

TEST(PreviewPage, DependsOnThePacketAndTheReportInOnePlaceEach)
{
    std::string page = previewPage("foo", "f");
    page.replace(page.find(">Zm9v<"), 6, "><");
    page.replace(page.find(">Zg==<"), 6, "><");
    EXPECT_EQ(page, previewPage("", ""));
}

} // namespace
