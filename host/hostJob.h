#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

// One side of a translation, for one file.
struct hostFile {
    std::string file;
    std::string module;
    std::string format;
    std::map<std::string, std::string> options;
    // Values that the user gave and that are not legal; the options have others instead.
    std::map<std::string, std::string> refused;
};

// The translation that the engine asks for.
struct hostJob {
    std::vector<hostFile> inputs;
    hostFile output;
    // The name under which the user knows the output.
    std::string final_name;
    // Empty when the engine made none.
    std::string staging;
    std::uint64_t memory_limit = 0;
    // Reading the output back may take so long, however fast it was written.
    std::chrono::milliseconds least_patience = std::chrono::seconds(5);
};

enum class hostJobState { complete, incomplete, invalid };

// Reads a job from the text at the head of the input. An incomplete text may become one with more input. With
// an invalid one, `problem` says why, in English.
hostJobState host_parse_job(std::string_view text, hostJob & job, std::string & problem);
