#pragma once

#include <cstdint>

// What the operations do to one byte: d of the buffer that is written, s of the other. Results are kept to
// eight bits, so everything above the lowest sixteen bits on the way there does not matter, and products of
// sixteen bits fit twice as often into the registers as whole integers. An s of sixteen bits may be an
// argument of the caller's beyond a byte.

/// d + (((s - d) * amount) >> 8).
class sglBlendFormula {
public:
    explicit sglBlendFormula(int amount) : m_amount(static_cast<std::uint16_t>(amount)) {}

    std::uint8_t operator()(std::uint8_t d, std::uint16_t s) const
    {
        unsigned int const distance = static_cast<std::uint16_t>(s - d);
        auto const product = static_cast<std::uint16_t>(distance * m_amount);
        return static_cast<std::uint8_t>(d + (product >> 8));
    }

private:
    std::uint16_t m_amount;
};

/// (d * s) >> 8.
struct sglMultiplyFormula {
    std::uint8_t operator()(std::uint8_t d, std::uint16_t s) const
    {
        return static_cast<std::uint8_t>(static_cast<std::uint16_t>(d * s) >> 8);
    }
};

/// 255 - (((255 - s) * (255 - d)) >> 8).
struct sglScreenFormula {
    std::uint8_t operator()(std::uint8_t d, std::uint8_t s) const
    {
        return static_cast<std::uint8_t>(255 - (static_cast<std::uint16_t>((255 - s) * (255 - d)) >> 8));
    }
};

struct sglDarkenFormula {
    std::uint8_t operator()(std::uint8_t d, std::uint8_t s) const { return s < d ? s : d; }
};

struct sglLightenFormula {
    std::uint8_t operator()(std::uint8_t d, std::uint8_t s) const { return s > d ? s : d; }
};

struct sglDifferenceFormula {
    std::uint8_t operator()(std::uint8_t d, std::uint8_t s) const
    {
        return static_cast<std::uint8_t>(s > d ? s - d : d - s);
    }
};

/// d - s, stopping at 0.
struct sglLoseFormula {
    std::uint8_t operator()(std::uint8_t d, std::uint16_t s) const
    {
        auto const loss = static_cast<std::uint8_t>(s);
        return static_cast<std::uint8_t>(d - (d < loss ? d : loss));
    }
};
