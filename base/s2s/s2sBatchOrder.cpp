#include "s2s/s2sBatchOrder.h"

#include <algorithm>

#include "ap/apFileIdentity.h"
#include "s2s/s2sFiles.h"

namespace fs = std::filesystem;

namespace {

// Its place, also of a file that is still to be made, and for one that is there also its number, which other
// places may share.
std::vector<std::string> signs_of(utString const & file)
{
    std::error_code error;
    auto const place = s2s_real_place(file.str());
    auto const folder = fs::weakly_canonical(place.parent_path(), error);
    std::vector<std::string> signs{((error ? place.parent_path() : folder) / place.filename()).native()};
    if (auto const identity = ap_file_identity(place.native()))
        signs.push_back(std::to_string(identity->device) + ':' + std::to_string(identity->inode));
    return signs;
}

int last_in(std::unordered_map<std::string, int> const & entries, std::string const & sign)
{
    auto const found = entries.find(sign);
    return found == entries.end() ? -1 : found->second;
}

} // namespace

s2sBatchOrder::s2sBatchOrder(s2sTranslationElementscoPageArr const & translations)
    : m_translations(translations)
{
}

int s2sBatchOrder::last_before(int index)
{
    while (static_cast<int>(m_last_before.size()) <= index)
        look_at_next();
    return m_last_before[static_cast<std::size_t>(index)];
}

void s2sBatchOrder::look_at_next()
{
    auto const index = static_cast<int>(m_last_before.size());
    auto const & translation = m_translations[index];
    std::vector<std::string> read;
    for (auto const & input : translation.input_elements())
        for (auto const & sign : signs_of(input.file()))
            read.push_back(sign);
    auto const written = signs_of(translation.output_elements().file());

    int last = -1;
    for (auto const & sign : read)
        last = std::max(last, last_in(m_last_writer, sign));
    for (auto const & sign : written)
        last = std::max({last, last_in(m_last_writer, sign), last_in(m_last_reader, sign)});

    m_last_before.push_back(last);
    for (auto const & sign : read)
        m_last_reader[sign] = index;
    for (auto const & sign : written)
        m_last_writer[sign] = index;
}
