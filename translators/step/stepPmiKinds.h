#pragma once

#include <string_view>
#include <vector>

// Which of the entities of a STEP file are product and manufacturing information (PMI), and how the others
// hang on them. Kinds are the keywords of a definition, several for a complex one.
using stepKinds = std::vector<std::string_view>;

// The word for it, a key; null for everything else.
char const * step_pmi_item(stepKinds const & kinds);

// An entity that belongs to the entities that it refers to, while these know nothing of it.
struct stepPmiLink {
    // Which of its references say that it belongs there.
    enum class Subject {
        first,
        last,
        first_two, // one of them
        both,      // the first two
        any,
        not_second, // any but the second
        listed,     // any annotation, view or group of them
    };
    // What says something else without it, and so must not be there without it.
    enum class Holds {
        nothing,
        first,
        first_two,
        first_and_datum,
        last,
        from_third_on,
        tolerances,
        shown,
        model
    };

    std::string_view kind;
    Subject subject;
    Holds holds;
};

// Null when it is no such entity.
stepPmiLink const * step_pmi_link(stepKinds const & kinds);

// It groups annotations and views and is the same group when one is missing.
bool step_is_group(stepKinds const & kinds);
bool step_is_drawn_model(stepKinds const & kinds);
// It names the geometry that a part of a shape consists of: that part, the representation, the geometry.
bool step_names_geometry(stepKinds const & kinds);
// It gives a colour to something that is no annotation.
bool step_is_plain_style(stepKinds const & kinds);
// A face, edge, vertex, shell or body.
bool step_is_topology(stepKinds const & kinds);
bool step_is_datum(stepKinds const & kinds);
bool step_is_product(stepKinds const & kinds);
