/// @file
/// This test program has the failing allocation functions of the XML tests, too.

#include "xml/FailingAllocation.cpp"
