#include "host/hostPlaces.h"

#include <cstdlib>
#include <filesystem>
#include <link.h>
#include <set>
#include <sstream>
#include <string_view>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

std::string folder_of(std::string const & file)
{
    auto const folder = fs::path(file).parent_path();
    return folder.empty() ? "." : folder.string();
}

fs::path home()
{
    std::error_code error;
    char const * const name = std::getenv("HOME");
    return name && *name ? fs::canonical(name, error) : fs::path();
}

// Keys and passwords lie in the hidden folders of a home, and nothing that a file may refer to.
void add_visible(fs::path const & folder, std::vector<std::string> & places)
{
    std::error_code error;
    for (auto entry = fs::directory_iterator(folder, error); !error && entry != fs::directory_iterator();
         entry.increment(error)) {
        if (!entry->path().filename().string().starts_with('.')) {
            places.push_back(entry->path());
        }
    }
}

// A file may refer to others, as an assembly does to its parts.
void add_input(std::string const & file, std::vector<std::string> & places)
{
    places.push_back(file);
    std::error_code error;
    auto const folder = folder_of(file);
    auto const real = fs::canonical(folder, error);
    auto const user = home();
    if (real == user) {
        add_visible(real, places);
        return;
    }
    // A folder that has the home below it, or all that there is, would give away too much.
    bool const above = real == "/" || user.native().starts_with(real.native() + "/");
    if (!above) {
        places.push_back(folder);
    }
}

// The manifest lies beside the module, and so do the libraries that it brings.
void add_side(hostFile const & side, std::vector<std::string> & places)
{
    places.push_back(folder_of(side.module));
}

int add_library(dl_phdr_info * library, std::size_t, void * folders)
{
    if (library->dlpi_name && *library->dlpi_name) {
        static_cast<std::set<std::string> *>(folders)->insert(folder_of(library->dlpi_name));
    }
    return 0;
}

// The folders that the loader looks into, and those in which it has found what is loaded already.
std::set<std::string> library_folders()
{
    std::set<std::string> folders{"/usr/lib", "/usr/lib64", "/usr/local/lib", "/lib", "/lib64"};
    ::dl_iterate_phdr(add_library, &folders);
    char const * const given = std::getenv("LD_LIBRARY_PATH");
    std::istringstream names(given ? given : "");
    for (std::string name; std::getline(names, name, ':');) {
        folders.insert(name.empty() ? "." : name);
    }
    return folders;
}

// Open CASCADE finds its resources by variables where it does not lie in its usual place.
void add_resources(std::vector<std::string> & places)
{
    for (char ** variable = ::environ; *variable; ++variable) {
        std::string_view const text = *variable;
        if (text.starts_with("CSF_") || text.starts_with("CASROOT=")) {
            places.emplace_back(text.substr(text.find('=') + 1));
        }
    }
}

} // namespace

hostPlaces host_places_of(hostJob const & job)
{
    auto places = host_places_of_system();
    for (auto const & input : job.inputs) {
        add_input(input.file, places.read);
        add_side(input, places.read);
    }
    if (job.comparison) {
        for (auto const * side : {&job.comparison->a, &job.comparison->b}) {
            add_input(side->file, places.read);
            add_side(*side, places.read);
        }
        return places;
    }
    add_side(job.output, places.read);
    places.write.push_back(folder_of(job.output.file));
    return places;
}

hostPlaces host_places_of_system()
{
    hostPlaces places;
    auto const libraries = library_folders();
    places.read.assign(libraries.begin(), libraries.end());
    // Time zone and name of the user, for headers of files; how many processors there are; what the process
    // says of itself.
    for (auto const * place :
         {"/usr/share/opencascade", "/usr/share/locale", "/usr/share/zoneinfo", "/etc/ld.so.cache",
          "/etc/localtime", "/etc/nsswitch.conf", "/etc/passwd", "/var/lib/sss/mc", "/sys/devices/system/cpu",
          "/proc/self", "/dev/zero", "/dev/urandom"}) {
        places.read.emplace_back(place);
    }
    add_resources(places.read);
    places.write.emplace_back("/dev/null");
    return places;
}
