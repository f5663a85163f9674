#include "host/hostProgress.h"

void hostProgress::Show(Message_ProgressScope const &, Standard_Boolean)
{
    constexpr auto interval = std::chrono::milliseconds(50);
    int const percent = static_cast<int>(GetPosition() * 100.0);
    if (percent <= m_percent) {
        return;
    }
    auto const now = std::chrono::steady_clock::now();
    if (percent < 100 && now - m_shown < interval) {
        return;
    }
    m_percent = percent;
    m_shown = now;
    m_events.progress(percent);
}
