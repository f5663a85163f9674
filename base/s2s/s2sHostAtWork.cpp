#include "s2s/s2sHostAtWork.h"

#include <nlohmann/json.hpp>

#include "s2s/s2sHostJob.h"

std::optional<s2sRefusal> s2sHostAtWork::start(std::string const & program,
                                               s2sTranslationElements const & elements,
                                               s2sLimits const & limits, int hosts,
                                               std::vector<std::string> const & others)
{
    auto const first = elements.first_input_file();
    s2sOutputPlace const place(elements.output_elements().file());
    m_place = place.real;
    if (auto const failure = m_staging.create(place.real))
        return s2sRefusal{s2sThreadWriteError, *failure, first};

    std::error_code error;
    if (!std::filesystem::exists(program, error))
        return s2sRefusal{s2sThreadReadError, s2sMessages::host_missing(program), first};
    std::vector<std::string> folders{folder().native()};
    folders.insert(folders.end(), others.begin(), others.end());
    if (int const number = m_process.start(program, folders)) {
        auto const reason = std::generic_category().message(number);
        return s2sRefusal{s2sThreadReadError, s2sMessages::host_not_started(program, reason), first};
    }

    s2sOutputPlaces const places{place.named, folder(), folder() / place.real.filename()};
    m_link.emplace(m_process.descriptor());
    m_allowance = s2s_allowance(limits, elements, folder(), hosts);
    m_link->send(s2s_host_job(elements, places, m_allowance));
    s2sHostLink * const links[] = {&*m_link};
    s2s_wait_for(links, -1, std::chrono::milliseconds(0));
    return std::nullopt;
}

void s2sHostAtWork::allow_free_memory(s2sLimits const & limits)
{
    auto const allowed = s2s_allowed_memory(limits, 1);
    if (allowed <= m_allowance.memory)
        return;
    m_allowance.memory = allowed;
    m_link->send(nlohmann::json{{"command", "memory"}, {"limit", allowed}}.dump());
}
