#include "s2s/s2sSilence.h"

#include <algorithm>

using std::chrono::milliseconds;

void s2sSilence::hear(s2sHostEvent const & event, std::string_view line)
{
    if (auto const progress = std::get_if<s2sHostProgress>(&event)) {
        m_news = m_news || progress->percent > m_percent;
        m_percent = std::max(m_percent, progress->percent);
    } else if (!std::holds_alternative<std::monostate>(event) && line != m_last) {
        m_news = true;
        m_last = line;
    }
}

void s2sSilence::settle(Clock::time_point now)
{
    if (m_news)
        m_since = now;
    m_news = false;
}

std::optional<milliseconds> s2sSilence::left(Clock::time_point now) const
{
    if (!m_patience)
        return std::nullopt;
    return std::chrono::ceil<milliseconds>(
        std::max<Clock::duration>(m_since + *m_patience - now, Clock::duration::zero()));
}

bool s2sSilence::too_long(Clock::time_point now) const
{
    return left(now) == milliseconds(0);
}
