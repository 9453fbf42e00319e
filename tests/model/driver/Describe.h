/// @file
/// All that an item holds, as a part of an answer.

#ifndef ZELINTERCHANGEDATA_TESTS_MODEL_DESCRIBE_H
#define ZELINTERCHANGEDATA_TESTS_MODEL_DESCRIBE_H

#include <string>

namespace ZelInterchangeData {
class i_ZelDataCaptionItem;
class i_ZelDataScreenTextItem;
class i_ZelDataTocItem;
} // namespace ZelInterchangeData

namespace model {

/// The last error, then the values of the getters; "(throws)" if one of them throws.
std::string described(const ZelInterchangeData::i_ZelDataCaptionItem& item);
std::string described(const ZelInterchangeData::i_ZelDataTocItem& item);
std::string described(const ZelInterchangeData::i_ZelDataScreenTextItem& item);

} // namespace model

#endif
