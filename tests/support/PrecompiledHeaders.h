/// @file
/// The headers that most tests include. The build may precompile it for all of them, so it includes no
/// header of the project; each test still includes what it uses.

#ifndef ZELINTERCHANGEDATA_TESTS_SUPPORT_PRECOMPILEDHEADERS_H
#define ZELINTERCHANGEDATA_TESTS_SUPPORT_PRECOMPILEDHEADERS_H

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <new>
#include <random>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#endif
