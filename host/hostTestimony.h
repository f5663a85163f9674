#pragma once

#include "sdk/sdkFinding.h"
#include "sdk/sdkPromise.h"

#include <string>
#include <vector>

// What the witness is asked once the output is written.
struct hostQuestion {
    std::string written; // path of the output
    std::string shown;   // the name under which the user knows it
    sdkPromise promise;
};

// What the witness has to say.
struct hostTestimony {
    // The output was read back and held against the source; otherwise the reason why not.
    bool read_back = false;
    sdkText reason;
    std::vector<sdkFinding> findings;
};

// As one line of JSON each, without its end. Reading throws std::exception for what is no such line.
std::string host_write_question(hostQuestion const & question);
hostQuestion host_read_question(std::string const & line);
std::string host_write_testimony(hostTestimony const & testimony);
hostTestimony host_read_testimony(std::string const & line);
