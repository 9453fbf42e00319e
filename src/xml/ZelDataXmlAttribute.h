/// @file
/// An attribute of an element.

#ifndef ZELINTERCHANGEDATA_XML_ZELDATAXMLATTRIBUTE_H
#define ZELINTERCHANGEDATA_XML_ZELDATAXMLATTRIBUTE_H

#include "xml/TreeMemory.h"
#include "xml/ZelDataXmlAttributeValue.h"

#include <cstddef>
#include <string>

namespace ZelInterchangeData {

class ZelDataXmlNode;

/// A name and a value; both are written as they were given.
class ZelDataXmlAttribute {
public:
    /// An attribute of @p owner with an empty name and value. The owner does not list it. Its name
    /// uses @p memory, or the heap if that is null.
    explicit ZelDataXmlAttribute(ZelDataXmlNode* owner, TreeMemory* memory = nullptr);

    /// Replaces the name; null is an empty name. Returns the value, which leads back to the owner.
    ZelDataXmlAttributeValue& operator<(const char* name);

    /// The number of bytes that write() appends.
    std::size_t length() const noexcept;
    /// Appends the name, `="`, the value, `"` and a space to @p out.
    void write(std::string& out) const;

    ZelDataXmlAttribute(const ZelDataXmlAttribute&) = delete;
    ZelDataXmlAttribute& operator=(const ZelDataXmlAttribute&) = delete;

private:
    TreeString name_;
    ZelDataXmlAttributeValue value_;
    ZelDataXmlNode* owner_;
};

} // namespace ZelInterchangeData

#endif
