#pragma once

#include <chrono>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "s2s/s2sBatchOrder.h"
#include "s2s/s2sEngineParts.h"
#include "s2s/s2sHostAtWork.h"
#include "s2s/s2sSideWork.h"
#include "s2s/s2sTranslationElements.h"

/// The entries of a batch that run ahead of their turn, as many as there are processors for. Nothing of them
/// is to be seen: their hosts write into their hidden folders, and what they say stays unread, within bounds,
/// until their turn. What could not begin ahead, or ended badly in company, is begun in its turn, while
/// others run ahead of theirs; these give way when the memory becomes short. The destructor ends the hosts
/// and removes their folders.
class s2sBatchAhead : public s2sSideWork {
public:
    /// All of it must outlive this object. `inputs` are those of the whole batch.
    s2sBatchAhead(s2sEngineParts const & parts, s2sTranslationElementscoPageArr const & translations,
                  std::vector<std::filesystem::path> const & inputs);
    ~s2sBatchAhead() override;

    /// The turn of an entry has come: the host that has begun with it, or null.
    std::unique_ptr<s2sHostAtWork> take(int index);

    std::optional<std::chrono::milliseconds> attend(s2sHostLink & current, bool at_work) override;
    std::vector<s2sHostLink *> links() override;
    std::vector<std::string> folders_in_use() const override;
    void files_changed(std::vector<std::filesystem::path> const & files) override;

private:
    struct Entry {
        std::unique_ptr<s2sHostAtWork> host;
        bool ended = false; // well, and waits for its turn
    };
    using Clock = std::chrono::steady_clock;
    using Entries = std::map<int, Entry>; // by index

    void settle(s2sHostLink & current);
    void give_way();
    bool begin_one_more(int others_at_work);
    bool next_starts_its_own() const;
    int next_to_begin();
    int running() const;
    std::size_t kept() const;
    void stop();

    s2sEngineParts const & m_parts;
    s2sTranslationElementscoPageArr const & m_translations;
    std::vector<std::filesystem::path> const & m_inputs;
    s2sBatchOrder m_order;
    Entries m_entries;
    std::vector<bool> m_left_to_turn;
    Clock::time_point m_next_look; // at the memory
    int m_current = 0;
    bool m_leaving = false; // a process has said its last word and is still there
    bool m_stopped = false;
};
