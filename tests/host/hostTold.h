#pragma once

#include "host/HostRun.h"

#include <string>

// What one run of the host told about a translation.
struct HostTold {
    explicit HostTold(HostJob const & job);

    std::string status;
    std::string verdict; // empty when there was none
    std::string texts;   // of all messages, in English
    bool ended_well = false;
};

// The module of a format in a folder of modules.
std::string host_module(std::string const & folder, std::string const & format);

// The format of a file by its ending: .step, .igs, .iges; everything else is BREP.
std::string host_format(std::string const & file);
