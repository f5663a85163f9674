#pragma once

#include <system_error>

#include "ut/utString.h"

/// How a file operation ended: true for success, otherwise the system's error with its text.
class [[nodiscard]] apFileResult {
public:
    apFileResult() = default;
    explicit apFileResult(int error_number) : m_error(error_number, std::generic_category()) {}
    explicit apFileResult(std::error_code error) : m_error(error) {}

    explicit operator bool() const { return !m_error; }
    std::error_code const & error() const { return m_error; }
    utString message() const { return utString(m_error.message()); }

private:
    std::error_code m_error;
};
