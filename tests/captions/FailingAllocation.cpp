/// @file
/// Memory that runs out at a chosen allocation, for this test program too.

#include "xml/FailingAllocation.cpp" // each program needs allocation functions of its own
