#pragma once

#include <memory>

/// A reference-counted pointer: a copy shares the object.
template <class T>
using coPrf = std::shared_ptr<T>;

/// An owning handle: moved, never copied.
template <class T>
using coPrg = std::unique_ptr<T>;
