#include "sglResourceOptionsPage.h"

#include "sglResourceHandler.h"
#include "sglResourceWidget.h"

#include "sdb/sdbResourceType.h"
#include "vmr/coResourceIterator.h"
#include "vmr/vmrResourceRegistry.h"
#include "wxt/wxtStringConverter.h"

wxBEGIN_EVENT_TABLE(sglResourceOptionsPage, sglOptionsPage)
    EVT_INIT_DIALOG(sglResourceOptionsPage::OnInitDialog)
wxEND_EVENT_TABLE()

namespace {

/// The tables that an apply left behind: to apply nothing to them again would change nothing, as long as
/// their file is what it was.
class Applied {
public:
    Applied() = default;
    explicit Applied(vmrTableInstance const & table)
        : m_overrides(table.table()->revision()), m_defaults(table.default_table()->revision()), m_any(true)
    {
    }
    bool is(vmrTableInstance const & table) const
    {
        return m_any && !table.invalid() && table.table()->revision() == m_overrides &&
               table.default_table()->revision() == m_defaults && table.is_as_loaded();
    }

private:
    std::uint64_t m_overrides = 0;
    std::uint64_t m_defaults = 0;
    bool m_any = false;
};

Applied last_applied;

} // namespace

sglResourceOptionsPage::sglResourceOptionsPage() = default;

sglResourceOptionsPage::sglResourceOptionsPage(utString const & name, vmrTableInstance * table,
                                               wxWindow * parent)
    : sglOptionsPage(parent), m_name(name), m_caller_table(table)
{
}

sglResourceOptionsPage::~sglResourceOptionsPage() = default;

int sglResourceOptionsPage::initialise(vmrTableInstance * working)
{
    m_changes.clear();
    m_working_table = working;
    return m_initialised ? do_update(*working) : 1;
}

void sglResourceOptionsPage::add_widget(utPtrClaimTag, sglResourceWidget * widget)
{
    m_widgets.append(std::unique_ptr<sglResourceWidget>(widget));
}

void sglResourceOptionsPage::OnInitDialog(wxInitDialogEvent &)
{
    m_initialised = 1;
    SetLabel(wxtStringConverter::to_wx(m_name));
    for (auto const & widget : m_widgets) {
        widget->set_value();
        widget->add_tooltip();
    }
}

int sglResourceOptionsPage::do_update(vmrTableInstance const &)
{
    for (auto const & widget : m_widgets)
        widget->resource_changed();
    return 1;
}

utString sglResourceOptionsPage::value_from_table(utString const & name, coResourceTable * table) const
{
    coResourceKeyBase const key(name);
    auto const * const resource = table ? table->lookup_resource(&key) : nullptr;
    return resource ? sglResourceHandler(name).display(resource) : utString::make_invalid();
}

/// The same, but for a text that is no legal value: a file may hold any.
utString sglResourceOptionsPage::legal_value_from_table(utString const & name, coResourceTable * table) const
{
    utString const value = value_from_table(name, table);
    bool const legal =
        value.invalid() || !sdbResourceType::look_up_type(name) || sglResourceHandler(name).validate(value);
    return legal ? value : utString::make_invalid();
}

utString sglResourceOptionsPage::default_value(utString const & name) const
{
    auto const * const working = m_working_table;
    utString value = legal_value_from_table(name, working ? working->default_table() : nullptr);
    if (!value.invalid())
        return value;
    vmrResourceTableMark const mark;
    value = legal_value_from_table(name, vmr_resource_table_inquire());
    return value.invalid() ? utString("Error") : value;
}

utString sglResourceOptionsPage::current_value(utString const & name) const
{
    auto const * const working = m_working_table;
    utString const value = value_from_table(name, working ? working->table() : nullptr);
    return value.invalid() ? default_value(name) : value;
}

void sglResourceOptionsPage::add_resource(utString const & name, utString const & value)
{
    if (value.compare(current_value(name)) != 0)
        m_changes[name] = value;
    else
        m_changes.remove(name);
}

int sglResourceOptionsPage::validate_resource_value(utString const & name, utString const & value) const
{
    return value.empty() ? 0 : sglResourceHandler(name).validate(value);
}

int sglResourceOptionsPage::resource_is_available(utString const & name,
                                                  vmrTableInstance const * instance) const
{
    return !value_from_table(name, instance->default_table()).invalid() &&
           sdbResourceType::look_up_type(name) != nullptr;
}

void sglResourceOptionsPage::apply_changes(vmrTableInstance & target)
{
    if (last_applied.is(target))
        change_overrides(target);
    else
        rebuild_overrides(target);
    last_applied = Applied(target);
}

/// Reads the file again, so that the overrides are all that differs from it.
void sglResourceOptionsPage::rebuild_overrides(vmrTableInstance & target) const
{
    vmrTableInstance scratch(target.resource_file().c_str());
    auto const carry_over = [&](coResourceBase const * resource) {
        utString const & name = resource->key->name;
        if (!m_changes.member(name)) {
            sglResourceHandler handler(name);
            handler.insert(handler.display(resource), scratch);
        }
    };
    for (coResourceIterator overrides(target.table()); ++overrides;)
        carry_over(overrides());
    for (coResourceIterator defaults(target.default_table()); ++defaults;) {
        utString const & name = defaults()->key->name;
        utString const in_file = value_from_table(name, scratch.default_table());
        // A default that was changed in memory is no longer what the file says. An override goes before it.
        if ((in_file.invalid() || in_file != value_from_table(name, target.default_table())) &&
            value_from_table(name, target.table()).invalid())
            carry_over(defaults());
    }
    for (auto const & [name, value] : m_changes)
        sglResourceHandler(name).insert(value, scratch);
    target.shallow_copy(scratch);
}

/// The same for a target that was rebuilt last: with many pages, all but the first find one.
void sglResourceOptionsPage::change_overrides(vmrTableInstance & target) const
{
    vmrTableInstance edits;
    edits.share_defaults(target);
    std::vector<utString> differing;
    for (auto const & [name, value] : m_changes) {
        sglResourceHandler(name).insert(value, edits);
        if (edits.table()->value(name) != target.table()->value(name))
            differing.push_back(name);
    }
    if (differing.empty())
        return;
    target.own_overrides();
    for (auto const & name : differing) {
        utString const value = edits.table()->value(name);
        if (value.invalid())
            target.table()->remove(name);
        else
            target.table()->set_value(name, value);
    }
}

int sglResourceOptionsPage::apply_pressed()
{
    apply_changes(*m_working_table);
    return 1;
}

int sglResourceOptionsPage::ok_pressed()
{
    // What an earlier page has shared with the caller is shared again below; meanwhile it need not be copied.
    if (m_caller_table->table() == m_working_table->table())
        m_caller_table->reset();
    apply_changes(*m_working_table);
    m_caller_table->shallow_copy(*m_working_table);
    m_caller_table->set_resource_file(m_working_table->resource_file());
    return 1;
}

int sglResourceOptionsPage::cancel_pressed()
{
    return 1;
}

int sglResourceOptionsPage::defaults_pressed()
{
    m_changes.clear();
    if (m_working_table->modified() || !m_working_table->is_as_loaded())
        m_working_table->initialise(m_working_table->resource_file());
    return do_update(*m_working_table);
}
