#include "vmr/vmrResourceRegistry.h"

#include <map>
#include <memory>
#include <mutex>

#include "vmr/vmrApplyResource.h"
#include "vmr/vmrGeneralResources.h"

namespace {

struct Registry {
    Registry()
    {
        for (auto const & declaration : vmr_general_resources())
            declarations.emplace(declaration.name, declaration);
        defaults = make_defaults();
    }

    std::unique_ptr<coResourceTable> make_defaults() const
    {
        auto table = std::make_unique<coResourceTable>();
        for (auto const & [name, declaration] : declarations)
            table->set_value(name, declaration.default_value);
        return table;
    }

    std::mutex mutex;
    // Nothing is ever taken out, so that a pointer to a declaration stays valid.
    std::map<std::string, vmrResourceDeclaration const, std::less<>> declarations;
    std::unique_ptr<coResourceTable> defaults;
    std::vector<std::unique_ptr<coResourceTable>> retired; ///< tables that a mark keeps
    int marks = 0;
};

Registry & registry()
{
    static Registry the_registry;
    return the_registry;
}

} // namespace

std::vector<std::string> vmr_register_resources(std::vector<vmrResourceDeclaration> const & declarations)
{
    auto & r = registry();
    std::scoped_lock const lock(r.mutex);
    std::vector<std::string> clashes;
    bool added = false;
    for (auto const & declaration : declarations) {
        auto const [found, fresh] = r.declarations.emplace(declaration.name, declaration);
        added = added || fresh;
        if (found->second.kind != declaration.kind ||
            found->second.default_value != declaration.default_value)
            clashes.push_back(declaration.name);
    }
    if (added) {
        if (r.marks > 0)
            r.retired.push_back(std::move(r.defaults));
        r.defaults = r.make_defaults();
    }
    return clashes;
}

vmrResourceDeclaration const * vmr_look_up_resource(std::string_view name)
{
    auto & r = registry();
    std::scoped_lock const lock(r.mutex);
    auto const found = r.declarations.find(name);
    return found == r.declarations.end() ? nullptr : &found->second;
}

std::optional<std::string> vmr_canonical_value(std::string_view name, std::string_view text)
{
    auto const declaration = vmr_look_up_resource(name);
    return declaration ? declaration->canonical(text) : std::string(text);
}

coResourceTable vmr_default_resource_table()
{
    auto & r = registry();
    std::scoped_lock const lock(r.mutex);
    return *r.defaults;
}

coResourceTable * vmr_resource_table_inquire()
{
    if (auto const table = vmrApplyResource::table_in_force())
        return table;
    auto & r = registry();
    std::scoped_lock const lock(r.mutex);
    return r.defaults.get();
}

vmrResourceTableMark::vmrResourceTableMark()
{
    auto & r = registry();
    std::scoped_lock const lock(r.mutex);
    ++r.marks;
}

vmrResourceTableMark::~vmrResourceTableMark()
{
    auto & r = registry();
    std::scoped_lock const lock(r.mutex);
    if (--r.marks == 0)
        r.retired.clear();
}
