#pragma once

#include <filesystem>
#include <string>
#include <unordered_map>
#include <vector>

#include "s2s/s2sTranslationElements.h"

/// Which entries of a batch must not overtake which: those where one writes a file that the other reads or
/// writes, under whatever name.
class s2sBatchOrder {
public:
    /// The translations must outlive this object. Files are looked at when an entry is first asked for.
    explicit s2sBatchOrder(s2sTranslationElementscoPageArr const & translations);

    /// The last of the entries before this one that it must not overtake; -1 for none.
    int last_before(int index);

private:
    void look_at_next();

    s2sTranslationElementscoPageArr const & m_translations;
    std::vector<int> m_last_before;
    // By whatever tells that two names are of one file: the last entry that reads or writes it.
    std::unordered_map<std::string, int> m_last_reader;
    std::unordered_map<std::string, int> m_last_writer;
};
