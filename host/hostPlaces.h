#pragma once

#include "host/hostJob.h"

#include <string>
#include <vector>

// Files, and folders with all that is below them, that a process may use. What is not there is passed over.
struct hostPlaces {
    std::vector<std::string> read;
    std::vector<std::string> write; // folders, in which it may also read, make and remove
};

// What a job needs: its inputs with what lies beside and below them, the modules with the libraries of the
// system, and the folder of the output.
hostPlaces host_places_of(hostJob const & job);

// What any job needs of the machine.
hostPlaces host_places_of_system();
