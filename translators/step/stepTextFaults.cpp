#include "step/stepTextFaults.h"

#include "sdk/sdkLimits.h"

#include <algorithm>
#include <charconv>

namespace {

constexpr std::size_t shown = 40;

bool is_digit(char character)
{
    return character >= '0' && character <= '9';
}

// Some files have letters beyond ASCII where they should not be.
bool is_word(char character)
{
    return static_cast<unsigned char>(character) >= 0x80 || (character >= 'A' && character <= 'Z') ||
           (character >= 'a' && character <= 'z') || character == '_';
}

bool is_space(char character)
{
    return character == ' ' || (character >= '\t' && character <= '\r');
}

// Digits without an exponent of three places are fine in any number that fits a line or two.
bool is_usable(std::string_view number)
{
    auto const exponent = number.find_first_of("eE");
    auto const digits = exponent == std::string_view::npos ? 0 : number.size() - exponent - 1;
    if (digits < 3 && number.size() < 64) {
        return true;
    }
    number.remove_prefix(number.front() == '+' ? 1 : 0);
    double value = 0;
    auto const result = std::from_chars(number.data(), number.data() + number.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        // Too small to be told from zero is no fault.
        return number.find("-", number.find_first_of("eE")) != std::string_view::npos;
    }
    return result.ec == std::errc() && sdk_usable(value);
}

class Scan {
public:
    explicit Scan(std::string_view text) : m_text(text) {}

    stepTextFaults run()
    {
        while (m_at < m_text.size()) {
            step();
        }
        return std::move(m_found);
    }

private:
    void step()
    {
        char const character = m_text[m_at];
        if (is_space(character)) {
            ++m_at;
            return;
        }
        if (is_digit(character) || character == '-' || character == '+') {
            number();
        } else if (is_word(character)) {
            word();
        } else {
            mark(character);
        }
        m_before = character;
    }

    void mark(char character)
    {
        switch (character) {
        case '\'':
        case '"':
            m_at = std::min(m_text.find(character, m_at + 1), m_text.size() - 1) + 1;
            return;
        case '/':
            m_at = m_text.compare(m_at, 2, "/*") == 0 ? after("*/", m_at + 2) : m_at + 1;
            return;
        case '#':
            skip(is_digit);
            return;
        case '.':
            skip([](char one) { return is_word(one) || is_digit(one); });
            m_at += m_at < m_text.size() && m_text[m_at] == '.' ? 1 : 0;
            return;
        case ';':
            m_statement = m_at + 1;
            m_depth = 0;
            break;
        case '(':
            ++m_depth;
            // Behind the name of a type they hold its parameters, which may be none.
            m_list = m_before == ',' || m_before == '(';
            break;
        case ')':
            --m_depth;
            if (m_before == '(' && m_list) {
                m_found.empty_lists.insert(instance());
            }
            break;
        default:
            break;
        }
        ++m_at;
    }

    void number()
    {
        auto const begin = m_at;
        skip(
            [](char one) { return is_digit(one) || is_word(one) || one == '.' || one == '+' || one == '-'; });
        auto const token = m_text.substr(begin, m_at - begin);
        bool const letters = std::any_of(token.begin(), token.end(),
                                         [](char one) { return is_word(one) && one != 'E' && one != 'e'; });
        if (m_depth > 0 && (letters || !is_usable(token))) {
            add(token);
        }
    }

    // The name of an entity or of a type stands before a parenthesis.
    void word()
    {
        auto const begin = m_at;
        skip([](char one) { return is_word(one) || is_digit(one) || one == '-'; });
        auto const token = m_text.substr(begin, m_at - begin);
        auto next = m_at;
        while (next < m_text.size() && is_space(m_text[next])) {
            ++next;
        }
        if (m_depth > 0 && next < m_text.size() && m_text[next] != '(' && m_text[next] != '/') {
            add(token);
        }
    }

    template <class Part>
    void skip(Part part)
    {
        ++m_at;
        while (m_at < m_text.size() && part(m_text[m_at])) {
            ++m_at;
        }
    }

    std::size_t after(std::string_view end, std::size_t from) const
    {
        auto const found = m_text.find(end, from);
        return found == std::string_view::npos ? m_text.size() : found + end.size();
    }

    void add(std::string_view token)
    {
        m_found.numbers.push_back({instance(), std::string(token.substr(0, shown))});
    }

    // The number of the one that the text is about here.
    int instance() const
    {
        auto const mark = m_text.find('#', m_statement);
        int number = 0;
        if (mark < m_at) {
            std::from_chars(m_text.data() + mark + 1, m_text.data() + m_at, number);
        }
        return number;
    }

    std::string_view m_text;
    std::size_t m_at = 0;
    std::size_t m_statement = 0;
    int m_depth = 0;
    bool m_list = false; // the last parenthesis was that of a list
    stepTextFaults m_found;
    char m_before = 0; // the last mark that was no space
};

} // namespace

stepTextFaults step_text_faults(std::string_view text)
{
    return Scan(text).run();
}
