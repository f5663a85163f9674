#include "sglDib.h"

#include <algorithm>
#include <type_traits>

namespace {

constexpr std::size_t largest_count = (std::size_t(2) << 30) / sizeof(sglCOLORREF);

/// White or black, whatever the alpha.
bool is_grey(sglCOLORREF pixel, unsigned char level)
{
    return pixel.blue == level && pixel.green == level && pixel.red == level;
}

} // namespace

int sglDib::create(int w, int h)
{
    destroy();
    if (w < 0 || h < 0)
        return 0;
    auto const pixels = static_cast<std::size_t>(w) * static_cast<std::size_t>(h);
    if (pixels > largest_count)
        return 0;
    if (pixels > 0) {
        // Zeroed memory straight from the system costs nothing until it is used.
        static_assert(std::is_trivially_copyable_v<sglCOLORREF>);
        m_pixels.reset(static_cast<sglCOLORREF *>(std::calloc(pixels, sizeof(sglCOLORREF))));
        if (!m_pixels)
            return 0;
    }
    m_width = w;
    m_height = h;
    return 1;
}

int sglDib::destroy()
{
    m_pixels.reset();
    m_width = 0;
    m_height = 0;
    return 1;
}

bool sglDib::resize(int w, int h)
{
    return (w == m_width && h == m_height) || create(w, h);
}

int sglDib::has_alpha() const
{
    constexpr std::size_t step = 4096;
    for (std::size_t begin = 0; begin < count(); begin += step) {
        unsigned char any = 0;
        auto const end = std::min(count(), begin + step);
        for (std::size_t i = begin; i < end; ++i)
            any |= m_pixels[i].alpha;
        if (any)
            return 1;
    }
    return 0;
}

int sglDib::has_button_edge() const
{
    if (m_width < 2 || m_height < 1)
        return 0;
    auto const & top = m_pixels[count() - static_cast<std::size_t>(m_width) + 1];
    auto const & bottom = m_pixels[static_cast<std::size_t>(m_width) - 1];
    return is_grey(top, 255) && is_grey(bottom, 0);
}

int sglDib::set_alpha(unsigned char alpha)
{
    if (!m_pixels)
        return 0;
    for (std::size_t i = 0; i < count(); ++i)
        m_pixels[i].alpha = alpha;
    return 1;
}
