#include "vmr/vmrTableInstance.h"

#include "vmr/coResourceIterator.h"
#include "vmr/vmrResourceFile.h"
#include "vmr/vmrResourceRegistry.h"

namespace {

std::shared_ptr<coResourceTable> copy_of(std::shared_ptr<coResourceTable> const & table)
{
    return table ? std::make_shared<coResourceTable>(*table) : nullptr;
}

} // namespace

vmrTableInstance::vmrTableInstance(char const * file)
{
    if (file)
        initialise(file);
}

vmrTableInstance::vmrTableInstance(vmrTableInstance const & other)
{
    deep_copy(other);
}

vmrTableInstance & vmrTableInstance::operator=(vmrTableInstance const & other)
{
    if (this != &other)
        deep_copy(other);
    return *this;
}

int vmrTableInstance::initialise(utString const & file)
{
    // `file` may be the name that this instance keeps. The old tables may be shared, and so are left as they
    // are.
    m_file = utString(file);
    m_problems.clear();
    m_table = std::make_shared<coResourceTable>();
    m_default_table = std::make_shared<coResourceTable>();
    m_loaded_file = m_file;
    m_loaded_state = vmrFileState::of(m_file.str());
    int const result = vmr_resource_load(m_file, *m_default_table, m_problems);
    m_loaded_revision = m_default_table->revision();
    return result;
}

int vmrTableInstance::add_resource(utString const & name, utString const & value)
{
    auto const canonical = vmr_canonical_value(name.view(), value.view());
    if (!canonical)
        return 0;
    set_override(name, *canonical);
    return 1;
}

void vmrTableInstance::add_as_it_stands(coResourceBase const & resource)
{
    add_as_it_stands(resource.key->name, resource.value_text());
}

void vmrTableInstance::add_as_it_stands(utString const & name, utString const & value)
{
    set_override(name, value);
}

void vmrTableInstance::set_override(utString const & name, utString const & value)
{
    if (!m_table)
        m_table = std::make_shared<coResourceTable>();
    m_table->set_value(name, value);
}

void vmrTableInstance::reset()
{
    *this = vmrTableInstance();
}

void vmrTableInstance::shallow_copy(vmrTableInstance const & other)
{
    m_default_table = other.m_default_table;
    m_table = other.m_table;
    m_problems = other.m_problems;
    take_loaded_state(other);
}

void vmrTableInstance::deep_copy(vmrTableInstance const & other)
{
    m_file = other.m_file;
    m_default_table = copy_of(other.m_default_table);
    m_table = copy_of(other.m_table);
    m_problems = other.m_problems;
    take_loaded_state(other);
}

void vmrTableInstance::take_loaded_state(vmrTableInstance const & other)
{
    m_loaded_file = other.m_loaded_file;
    m_loaded_state = other.m_loaded_state;
    m_loaded_revision = other.m_loaded_revision;
}

int vmrTableInstance::is_as_loaded() const
{
    return m_default_table && m_loaded_file == m_file && m_loaded_revision == m_default_table->revision() &&
           m_loaded_state.is_still(m_file.str());
}

void vmrTableInstance::share_defaults(vmrTableInstance const & other)
{
    shallow_copy(other);
    m_file = other.m_file;
    m_table = std::make_shared<coResourceTable>();
}

void vmrTableInstance::own_overrides()
{
    if (m_table.use_count() > 1)
        m_table = copy_of(m_table);
}

utString vmrTableInstance::effective_value(utString const & name) const
{
    for (auto const table : {table(), default_table()}) {
        auto const value = table ? table->value(name) : utString::make_invalid();
        if (value.invalid())
            continue;
        if (auto const canonical = vmr_canonical_value(name.view(), value.view()))
            return *canonical;
    }
    auto const declaration = vmr_look_up_resource(name.view());
    return declaration ? utString(declaration->default_value) : utString::make_invalid();
}

std::map<std::string, std::string> vmrTableInstance::effective_values() const
{
    std::map<std::string, std::string> values;
    for (auto const table : {table(), default_table()})
        for (coResourceIterator it(table); ++it;)
            values.try_emplace(it()->key->name.str(), effective_value(it()->key->name).str());
    return values;
}

std::map<std::string, std::string> vmrTableInstance::refused_overrides() const
{
    std::map<std::string, std::string> refused;
    for (coResourceIterator it(table()); ++it;) {
        auto const & name = it()->key->name;
        auto const value = it()->value_text();
        if (!vmr_canonical_value(name.view(), value.view()))
            refused.emplace(name.str(), value.str());
    }
    return refused;
}
