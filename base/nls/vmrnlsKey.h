#pragma once

#include <string_view>

/// The two halves of a message key of the form context::text. The context is a dotted word; where what stands
/// before the first "::" is no such word, all of the key is text.
struct vmrnlsKey {
    explicit vmrnlsKey(std::string_view key);

    std::string_view context; ///< empty for none
    std::string_view text;
};
