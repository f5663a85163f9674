#pragma once

#include <string>
#include <vector>

// The text of an IGES file in the form with records of 80 characters, entity by entity. Lengths in the file
// are millimetres unless its global section says otherwise.
class igesText {
public:
    struct Entity {
        int type;
        std::string parameters; // behind the type, with the commas between them and without the end
        int form = 0;
        int transformation = 0; // directory number
        std::string status = "00000000";
    };

    // Parameters 12 to 15 of the global section: space, scale, unit flag and the name of the unit.
    explicit igesText(std::string units = "1.,2,2HMM") : m_units(std::move(units)) {}

    // The directory number under which others refer to the entity: 1, 3, 5 and so on.
    int add(Entity const & entity);

    std::string text() const;

private:
    std::string m_units;
    std::vector<Entity> m_entities;
};
