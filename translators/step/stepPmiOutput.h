#pragma once

#include "step/stepPmiSource.h"
#include "step/stepPmiTargets.h"

#include <map>
#include <optional>
#include <set>
#include <string>

// Why an item of a source is not in an output.
enum class stepPmiLoss {
    geometry,  // what it is attached to was repaired, changed or left out
    product,   // it belongs to an assembly or to a part that was changed as a whole
    incomplete // the source lacks something that it refers to
};

// Puts the product and manufacturing information of one source into a model that is about to be written, as
// far as all that it refers to is there.
class stepPmiOutput {
public:
    stepPmiOutput(stepPmiSource const & source, stepPmiTargets const & targets);

    // The definitions of the items that are kept, as the text of a STEP file, numbered from there on.
    std::string definitions(int first_number) const;
    // How many entities these are.
    int number() const { return static_cast<int>(m_kept.size()); }
    // None when the item is kept.
    std::optional<stepPmiLoss> loss_of(int item) const;

private:
    using Reference = stepPmiEntity::Reference;

    void find_losses();
    void find_lone_models();
    std::set<int> placed_models() const;
    bool shows_shape(stepPmiEntity const & model) const;
    bool is_kept_shape(int number) const;
    void lose(int entity, stepPmiLoss why);
    void keep_reachable();
    void keep(int entity);
    bool belongs_to_kept(int link) const;
    // Why a reference leads nowhere; none when it leads somewhere.
    std::optional<stepPmiLoss> gap_of(int number) const;
    bool may_lack(stepKinds const & holder, Reference const & reference) const;
    stepPmiTargets::Product product(int definition) const;
    // The number in the output that stands for it; 0 when there is none.
    int target_of(int number, int named_representation) const;
    std::string definition_of(stepPmiEntity const & entity, std::map<int, int> const & numbers) const;

    stepPmiSource const & m_source;
    stepPmiGraph const & m_graph;
    stepPmiTargets const & m_targets;
    std::map<int, std::optional<stepPmiTargets::Product>> m_products;
    // Who refers to an entity, and whether he can be without it.
    struct User {
        int number;
        bool lists;
    };
    std::multimap<int, User> m_users;
    // How many of those that a group lists are there.
    std::map<int, int> m_listed;
    std::map<int, stepPmiLoss> m_lost;
    std::set<int> m_kept;
};
