#pragma once

#include <functional>

/// Does the work on this thread, which has to be the first one of the process, with a stack of 8 MB at least,
/// and lets every thread begun from then on have one as well. Users set smaller ones by `ulimit -s`, and
/// often for good, so that raising the limit is not possible. The limit stays as it is. To be called once,
/// early.
int run_on_large_stack(std::function<int()> const & work);
