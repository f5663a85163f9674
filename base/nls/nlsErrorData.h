#pragma once

/// What an operation on language settings came to: 0 for success.
class nlsErrorData {
public:
    explicit nlsErrorData(int code = 0) : m_code(code) {}

    int code() const { return m_code; }
    bool ok() const { return m_code == 0; }

    friend bool operator==(nlsErrorData const &, nlsErrorData const &) = default;

private:
    int m_code;
};
