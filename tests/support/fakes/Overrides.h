/// @file
/// Overrides of operations in a fake. Each passes the operation of the class `Own` through run() of the
/// fake, or through runGetter() if it is a getter.

#ifndef ZELINTERCHANGEDATA_TESTS_SUPPORT_FAKES_OVERRIDES_H
#define ZELINTERCHANGEDATA_TESTS_SUPPORT_FAKES_OVERRIDES_H

#include "ZelInterchangeData/ZelDataResult_tags.h"

/// Overrides an operation without parameters.
#define OVERRIDE_ACTION(name)                                                                      \
    ::ZelInterchangeData::ZelDataResult_tags name() override                                       \
    {                                                                                              \
        return this->run(#name, [&] { return Own::name(); });                                      \
    }

/// Overrides an operation that takes a @p Type.
#define OVERRIDE_SETTER(name, Type)                                                                \
    ::ZelInterchangeData::ZelDataResult_tags name(Type value) override                             \
    {                                                                                              \
        return this->run(#name, [&] { return Own::name(value); });                                 \
    }

/// Overrides a `const` operation that delivers a @p Type.
#define OVERRIDE_GETTER(name, Type)                                                                \
    ::ZelInterchangeData::ZelDataResult_tags name(Type& value) const override                      \
    {                                                                                              \
        return this->runGetter(#name, [&] { return Own::name(value); });                           \
    }

#endif
