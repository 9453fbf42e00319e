/// @file
/// Where the image of an item is found.

#ifndef ZELINTERCHANGEDATA_CORE_IMAGEREFERENCE_H
#define ZELINTERCHANGEDATA_CORE_IMAGEREFERENCE_H

#include <string>

namespace ZelInterchangeData {

/// A file of images, and the place of one image in it.
struct ImageReference {
    std::string file;
    unsigned long index = 0;
    /// In bytes.
    unsigned long long offset = 0;
};

} // namespace ZelInterchangeData

#endif
