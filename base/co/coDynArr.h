#pragma once

#include <vector>

#include "co/coArray.h"

/// A dynamic array in one piece of memory.
template <class T>
using coDynArr = coArray<T, std::vector<T>>;
