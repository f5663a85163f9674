#pragma once

#include <cstddef>

/// While this lives, `new` fails for pieces of more than `most` bytes, in any thread. One at a time.
class kitScarceMemory {
public:
    explicit kitScarceMemory(std::size_t most);
    ~kitScarceMemory();
    kitScarceMemory(kitScarceMemory const &) = delete;
    kitScarceMemory & operator=(kitScarceMemory const &) = delete;
};
