/// @file
/// The page that shows a packet in a browser.

#ifndef ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_PREVIEW_H
#define ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_PREVIEW_H

#include <string>
#include <string_view>

namespace publish {

/// Returns an HTML page, in ASCII, that needs no other file and shows @p packet and the problems in
/// @p report, a reportJson(). Both may hold any bytes: they become neither markup nor script. Beside
/// the page, it finds the content files and images that the packet names.
std::string previewPage(std::string_view packet, std::string_view report);

} // namespace publish

#endif
