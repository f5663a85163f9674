#pragma once

#include <dlfcn.h>
#include <glib.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>
#include <wx/dialog.h>

/// What the user sees of a file dialog, asked of the layer below the toolkit. Its headers are not needed: the
/// few functions are found in the libraries that the toolkit has brought along.
class kitFileChooser {
public:
    explicit kitFileChooser(wxDialog & dialog) : m_chooser(dialog.GetHandle()) {}

    std::vector<std::string> labels() const
    {
        std::vector<std::string> names;
        for (void * const filter : filters())
            names.push_back(call<char const *(void *)>("gtk_file_filter_get_name")(filter));
        return names;
    }
    /// The label of the filter that is chosen.
    std::string label() const
    {
        auto const chosen = call<void *(void *)>("gtk_file_chooser_get_filter")(m_chooser);
        return chosen ? call<char const *(void *)>("gtk_file_filter_get_name")(chosen) : "";
    }
    /// Whether a file of that name is seen through the filter.
    bool shows(std::size_t filter, char const * name) const
    {
        struct {
            int contains;
            char const * filename;
            char const * uri;
            char const * display_name;
            char const * mime_type;
        } const info{display_name_given, nullptr, nullptr, name, nullptr};
        return call<int(void *, void const *)>("gtk_file_filter_filter")(filters().at(filter), &info) != 0;
    }
    bool several() const { return call<int(void *)>("gtk_file_chooser_get_select_multiple")(m_chooser) != 0; }
    void select_all() const { call<void(void *)>("gtk_file_chooser_select_all")(m_chooser); }
    /// The file or folder that would be taken; empty until there is one.
    std::string path() const
    {
        return taken(call<char *(void *)>("gtk_file_chooser_get_filename")(m_chooser));
    }
    std::string folder() const ///< that is shown
    {
        return taken(call<char *(void *)>("gtk_file_chooser_get_current_folder")(m_chooser));
    }
    std::string name() const ///< in the field for the name of a new file
    {
        return taken(call<char *(void *)>("gtk_file_chooser_get_current_name")(m_chooser));
    }
    /// What the user types into the field for the name of a new file.
    void type_name(std::string const & name) const
    {
        call<void(void *, char const *)>("gtk_file_chooser_set_current_name")(m_chooser, name.c_str());
    }
    /// What the button does that takes the choice.
    void accept() const { call<void(void *, int)>("gtk_dialog_response")(m_chooser, response_accept); }

private:
    static constexpr int display_name_given = 4;
    static constexpr int response_accept = -3;

    static std::string taken(char * text)
    {
        std::string const result = text ? text : "";
        g_free(text);
        return result;
    }
    template <class Function>
    static Function * call(char const * name)
    {
        void * const found = dlsym(RTLD_DEFAULT, name);
        EXPECT_TRUE(found) << name;
        return reinterpret_cast<Function *>(found);
    }
    std::vector<void *> filters() const
    {
        std::vector<void *> all;
        GSList * const list = call<GSList *(void *)>("gtk_file_chooser_list_filters")(m_chooser);
        for (GSList * one = list; one; one = one->next)
            all.push_back(one->data);
        g_slist_free(list);
        return all;
    }

    void * m_chooser;
};
