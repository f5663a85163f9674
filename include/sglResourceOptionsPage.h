#pragma once

#include <memory>

#include "co/coPageArr.h"
#include "co/utStringutStringcoTable.h"
#include "sglOptionsPage.h"
#include "ut/utPtr.h"
#include "vmr/vmrTableInstance.h"

class sglResourceWidget;

/// A page whose content the layout file says. It keeps the edits that the user has made and not yet applied,
/// and is where the value of a resource is looked up, compared and applied. Graphical thread.
class sglResourceOptionsPage : public sglOptionsPage {
public:
    /// `name` is the title in the user's language; `table` is the instance that OK changes, and lives as long
    /// as the page.
    sglResourceOptionsPage(utString const & name, vmrTableInstance * table, wxWindow * parent);
    ~sglResourceOptionsPage() override;

    utString const & name() const override { return m_name; }

    /// Drops the edits and shows the values of `working`, which is not owned. Non-zero on success.
    int initialise(vmrTableInstance * working);

    void add_widget(utPtrClaimTag, sglResourceWidget * widget);

    wxDECLARE_EVENT_TABLE();

protected:
    friend class sglResourceWidget;

    sglResourceOptionsPage(); ///< no window

    /// Keeps `value` as an edit, or forgets the edit when the value is that of the tables.
    void add_resource(utString const & name, utString const & value);
    /// The first of the override, the value of the file, the built-in default, and the text "Error".
    utString current_value(utString const & name) const;
    utString default_value(utString const & name) const; ///< the same without the override
    int validate_resource_value(utString const & name, utString const & value) const; ///< 0 for an empty text

    /// Gives `target` a table of overrides that holds the old ones and the edits.
    void apply_changes(vmrTableInstance & target);
    int do_update(vmrTableInstance const & table); ///< every widget shows the working table
    int resource_is_available(utString const & name, vmrTableInstance const * instance) const;
    utString value_from_table(utString const & name, coResourceTable * table) const;
    utString legal_value_from_table(utString const & name,
                                    coResourceTable * table) const; ///< invalid if absent

    int ok_pressed() override;
    int apply_pressed() override;
    int cancel_pressed() override;
    int defaults_pressed() override; ///< back to what the resource file says

private:
    void OnInitDialog(wxInitDialogEvent & event);
    void rebuild_overrides(vmrTableInstance & target) const;
    void change_overrides(vmrTableInstance & target) const;

    utString m_name;
    vmrTableInstance * m_caller_table = nullptr;
    vmrTableInstance * m_working_table = nullptr;
    utStringutStringcoTable m_changes{4, 50};
    coPageArr<std::unique_ptr<sglResourceWidget>> m_widgets;
    int m_initialised = 0;
};
