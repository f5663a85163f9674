#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
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

// Two files that are to be held against each other.
struct hostComparisonJob {
    hostFile a;
    hostFile b;
    double relative = 1.0e-6; // of volumes, areas and lengths
    double absolute = 1.0e-4; // of places, in millimetres
    double deflection = 0.1;  // of triangles from surfaces, in millimetres
    bool counts_only = false;
    // What is absent is compared where both files have it.
    std::optional<bool> names;
    std::optional<bool> colours;
    std::optional<bool> layers;
    std::optional<bool> structure; // assemblies and instances
};

// The translation, or the comparison, that the engine asks for.
struct hostJob {
    // With a comparison there are neither inputs nor an output.
    std::optional<hostComparisonJob> comparison;
    std::vector<hostFile> inputs;
    hostFile output;
    // The name under which the user knows the output.
    std::string final_name;
    // Empty when the engine made none.
    std::string staging;
    // Bytes; 0 for no limit.
    std::uint64_t memory_limit = 0;
    std::uint64_t file_size_limit = 0;
    // After so long without anything new the engine ends this process.
    std::optional<std::chrono::milliseconds> silence;
    // Reading the output back may take so long, however fast it was written.
    std::chrono::milliseconds least_patience = std::chrono::seconds(5);
};

enum class hostJobState { complete, incomplete, invalid };

// Reads a job from the text at the head of the input. An incomplete text may become one with more input. With
// an invalid one, `problem` says why, in English.
hostJobState host_parse_job(std::string_view text, hostJob & job, std::string & problem);
