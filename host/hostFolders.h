#pragma once

#include "ap/apMarkedFolder.h"
#include "host/hostJob.h"
#include "sdk/sdkResult.h"

#include <string>
#include <vector>

// The folders with unfinished outputs that this process removes when the engine is gone. They are known by
// their marks and held open from the beginning, so that nothing else is ever removed, whatever lies at their
// paths by then.
class hostFolders {
public:
    // Passes over what is no folder that an engine of this user has made.
    void add(std::string const & path);

    // Removes them with all that they hold, also while another thread still writes there.
    void remove() const;

private:
    std::vector<apMarkedFolder> m_folders;
};

// Makes the staging folder of a job the current one, and the job write there without going by its path any
// more. Of no effect on a job without such a folder; a write error when something else has taken its place.
sdkResult host_enter_staging(hostJob & job);
