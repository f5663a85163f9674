#pragma once

#include "kit/kitAppTest.h"

/// Installs a format that is listed and cannot really be run: manifest, module and factory settings. It has one text
/// resource of its own, <module>Greeting, and the general ones.
inline void kit_install_format(kitTempFolder const & folder, std::string const & installation,
                               std::string const & name, std::string const & module, bool viewer = false)
{
    std::string const base = installation + "/lib/vmr/translators/" + module;
    folder.write(base + ".so", kit_read_file("/proc/self/exe").substr(0, 4096));
    folder.write(base + ".json", R"({"interface":1,"formats":[{"name":")" + name + R"(","filter":"format.filter::)" +
                                     name + R"( Files","category":"Test","extensions":[")" + module +
                                     R"("],"signatures":[],"sides":["input","output"],"viewer":)" +
                                     (viewer ? "true" : "false") + R"(,"resource_file":")" + module +
                                     R"(.rsc","resources":[{"name":")" + module +
                                     R"(Greeting","type":"text","default":"hello"}]}]})");
    folder.write(installation + "/share/vmr/resources/" + module + ".rsc", module + "Greeting = hello\n");
}
