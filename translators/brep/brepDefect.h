#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

// Why a BREP file cannot be what it says it is, and where.
class brepDefect : public std::runtime_error {
public:
    brepDefect(std::string const & reason, std::string place)
        : std::runtime_error(reason), m_place(std::move(place))
    {
    }

    std::string const & place() const { return m_place; }

private:
    std::string m_place;
};
