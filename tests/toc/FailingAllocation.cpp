/// @file
/// Allocation functions that can fail. They replace global ones, so this program has its own.

#include "xml/FailingAllocation.cpp"
