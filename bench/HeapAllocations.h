#pragma once

#include <cstddef>

// How many heap allocations the process has made so far. Linking HeapAllocations.cpp into a
// benchmark replaces malloc, calloc and realloc with counting ones; differences of this count
// around a measured loop give its allocations.
std::size_t HeapAllocations();
