/// @file
/// The names of image files, for every class that has one.

#ifndef ZELINTERCHANGEDATA_TESTS_HOSTILE_IMAGESTRINGS_H
#define ZELINTERCHANGEDATA_TESTS_HOSTILE_IMAGESTRINGS_H

#include "hostile/StringParameter.h"

namespace ZelInterchangeData {

/// Adds the name of an image, which may be any bytes, and its delivery.
template <class Object, std::unique_ptr<Object> (*make)()>
void addImageStrings(StringParameters& list, const std::string& of, Treatment treatment)
{
    addField<Object>(list, {of + "setImageFile 1", make,
                            [](Object& o, const std::string& name) { return o.setImageFile(name); },
                            [](const Object& o) {
                                std::string name;
                                EXPECT_EQ(ZelData_Ok, o.getImageFile(name));
                                return Texts{name};
                            },
                            Rule::Anything, treatment});
    addOut<Object>(
        list, of + "getImageFile 1",
        [] {
            auto object = make();
            EXPECT_EQ(ZelData_Ok, object->setImageFile("value"));
            return object;
        },
        [](Object& o, std::string& out) { return o.getImageFile(out); }, "value");
}

} // namespace ZelInterchangeData

#endif
