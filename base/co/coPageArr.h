#pragma once

#include <deque>

#include "co/coArray.h"

/// An array that grows at its end without moving its elements, so that a reference to an element stays valid
/// while others are appended.
template <class T>
using coPageArr = coArray<T, std::deque<T>>;
