#pragma once

#include "step/stepPmiGraph.h"

#include <string>
#include <vector>

// What an item says, told so that the same item of two files has the same text, however the files number and
// order their entities.
struct stepPmiItemContent {
    std::string kind;
    std::string name; // UTF-8; of a datum its letters
    std::string text; // a check sum of it where it is long
    std::vector<int> geometry;
};

class stepPmiContents {
public:
    explicit stepPmiContents(stepPmiGraph const & graph);

    stepPmiItemContent of(int item);

private:
    std::string describe(int number, stepPmiItemContent & item);
    void describe_entity(int number, stepPmiEntity const & entity, std::string & text,
                         stepPmiItemContent & item);
    std::vector<std::string> links_of(int number, stepPmiItemContent & item);
    std::string shown_by(int group) const;

    stepPmiGraph const & m_graph;
    std::multimap<int, int> m_links;
    std::set<int> m_open;
    std::size_t m_length = 0; // of what was told of all items
};
