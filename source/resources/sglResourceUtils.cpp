#include "sglResourceUtils.h"

#include "sglMessageBox.h"
#include "sglResourceHandler.h"

#include "ap/apPathName.h"
#include "sdb/sdbPathList.h"
#include "sdu/sduFileFunctions.h"
#include "vmr/coResourceIterator.h"
#include "vmr/coResourceTableMaker.h"
#include "vmr/vmrResourceFile.h"
#include "vmr/vmrResourceRegistry.h"
#include "wxt/wxtStringConverter.h"

#include <wx/filename.h>
#include <wx/msgdlg.h>

namespace {

/// The resource of that name in `table`, or null.
coResourceBase const * find(coResourceTable * table, utString const & name)
{
    coResourceIterator iterator(table);
    while (++iterator)
        if (iterator()->key->name == name)
            return iterator();
    return nullptr;
}

/// The owner's rights to read, write and enter; the platform takes the rights of others off by its own mask.
constexpr int directory_rights = wxS_DIR_DEFAULT;

bool make_directory(std::string const & text)
{
    return wxFileName::Mkdir(wxtStringConverter::path_to_wx(utString(text)), directory_rights,
                             wxPATH_MKDIR_FULL);
}

/// Where the path is cut when the level that ends at `failed` cannot be made.
std::size_t cut_after_failure(std::string const & text, std::size_t failed)
{
    int slashes = 0;
    for (std::size_t at = failed; at-- > 0;) {
        if (text[at] == '\\')
            return at;
        if (text[at] == '/' && ++slashes == 2)
            return at;
    }
    return 0;
}

/// Makes `text` level by level, with forward slashes in the end. Returns 0 when a level cannot be made;
/// `text` is then cut above it.
int make_levels(std::string & text)
{
    int result = 1;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '/' && text[at] != '\\')
            continue;
        std::string const level = text.substr(0, at);
        if (!level.empty() && !make_directory(level)) {
            text.resize(cut_after_failure(text, at));
            result = 0;
            break;
        }
        text[at] = '/';
    }
    if (!text.empty())
        make_directory(text);
    return result;
}

} // namespace

int sgl_copy_resource_table(vmrTableInstance const & from, vmrTableInstance & to)
{
    if (from.invalid())
        return 0;
    to.initialise(from.resource_file());
    for (coResourceIterator overrides(from.table()); ++overrides;)
        sglResourceHandler(overrides()->key->name).add_resource(overrides(), to);
    for (coResourceIterator defaults(from.default_table()); ++defaults;) {
        utString const & name = defaults()->key->name;
        auto const * const same = find(to.default_table(), name);
        if (same && same->value_text() == defaults()->value_text())
            continue;
        utString const text = sglResourceHandler(name).display(defaults());
        coResourceTableMaker::merge_entry(name, text, *to.default_table());
    }
    return 1;
}

int create_default_resources(utString & file)
{
    coResourceTable * const table = vmr_resource_table_inquire();
    int result = 1;
    std::string directory = file.str();
    auto const separator = directory.find_last_of("/\\");
    // A backslash stays at the end of the directory and a forward slash does not; both are understood below.
    directory.resize(separator == std::string::npos ? 0 : separator + (directory[separator] == '\\' ? 1 : 0));
    if (sdu_check_directory_exists(directory) != sduFileDirectoryExists)
        result = make_levels(directory);
    file = directory + "/" + vmr_default_resources_name;
    vmr_resource_save(file, table);
    return result;
}

int set_up_resources(utString & file, vmrTableInstance & instance)
{
    if (sdu_check_file_exists(file) == sduFileExists) {
        instance.initialise(file);
        instance.set_resource_file(file);
        coResourceIterator first(instance.default_table());
        if (++first)
            return 1;
    }
    if (!create_default_resources(file))
        sglMessageBox("vmrgrlib", 1052, wxOK | wxICON_WARNING);
    instance.reset();
    instance.initialise(file);
    instance.set_resource_file(file);
    return 0;
}

void sgl_fill_dir_from_dir(utString const & from_dir, utString const & to_dir, utString const & extension)
{
    auto const made = sdu_make_directory(to_dir);
    if (made != sduFileDone && made != sduFileDirectoryExists)
        return;
    utStringcoDynArr names;
    sdbPathList(from_dir).search_by_extension(names, extension);
    for (auto const & name : names)
        sdu_copy_file(name, to_dir + "/" + utString(apPathName::from_utf8(name.view()).file_name().utf8()));
}
