#pragma once

#include <string_view>
#include <utility>
#include <vector>

// What a definition in the text of a STEP file consists of.
struct stepToken {
    enum class Kind { word, string, reference, mark };
    Kind kind;
    // A keyword, number, enumeration, `$` or `*`; a string with its quotes; a reference; a bracket or comma.
    std::string_view text;
    int number = 0; // of what a reference refers to
    int depth = 0;  // how many brackets are open around it
};

// White space and comments are left out.
std::vector<stepToken> step_tokens(std::string_view definition);

// The keyword of a definition; all of them, in the order of the text, where it is a complex one.
std::vector<std::string_view> step_kinds(std::string_view definition);

// The definitions of a whole STEP file by their numbers. They are views of the text.
class stepDefinitions {
public:
    using Numbered = std::pair<int, std::string_view>;

    explicit stepDefinitions(std::string_view text);

    // From behind the equals sign up to the semicolon; empty when the file has none of that number.
    std::string_view of(int number) const;
    // In the order of their numbers.
    std::vector<Numbered> const & all() const { return m_all; }

private:
    std::vector<Numbered> m_all;
};
