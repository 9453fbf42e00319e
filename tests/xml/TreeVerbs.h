/// @file
/// Names for the verbs that an argument's type selects, and the text of a tree.

#ifndef ZELINTERCHANGEDATA_TESTS_XML_TREEVERBS_H
#define ZELINTERCHANGEDATA_TESTS_XML_TREEVERBS_H

#include "xml/ZelDataXmlNode.h"

#include <string>

namespace ZelInterchangeData {

inline constexpr long long* groupVerb = nullptr;
inline constexpr void* attributeVerb = nullptr;
inline constexpr void** textVerb = nullptr;

/// The text of @p node and all below it.
inline std::string written(const ZelDataXmlNode& node)
{
    std::string text;
    node.write(text);
    return text;
}

} // namespace ZelInterchangeData

#endif
