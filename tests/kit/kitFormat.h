#pragma once

#include "kit/kitAppTest.h"

/// Installs a format that is listed and cannot really be run: manifest, module and factory settings. It has
/// one text resource of its own, <module>Greeting, and the general ones.
inline void kit_install_format(kitTempFolder const & folder, std::string const & installation,
                               std::string const & name, std::string const & module, bool viewer = false)
{
    std::string const base = installation + "/lib/vmr/translators/" + module;
    // The head of a shared object does: the module itself is opened by the translator host alone.
    std::string head(4096, '\0');
    std::ifstream("/proc/self/exe", std::ios::binary).read(head.data(), 4096);
    folder.write(base + ".so", head);
    folder.write(base + ".json", R"({"interface":1,"formats":[{"name":")" + name +
                                     R"(","filter":"format.filter::)" + name +
                                     R"( Files","category":"Test","extensions":[")" + module +
                                     R"("],"signatures":[],"sides":["input","output"],"viewer":)" +
                                     (viewer ? "true" : "false") + R"(,"resource_file":")" + module +
                                     R"(.rsc","resources":[{"name":")" + module +
                                     R"(Greeting","type":"text","default":"hello"}]}]})");
    folder.write(installation + "/share/vmr/resources/" + module + ".rsc", module + "Greeting = hello\n");
}
