#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

class s2sHostLink;

/// What else the engine does while a translation waits for its host: in a batch, looking after the hosts that
/// run ahead. Here there is nothing else to do. On the thread of the job.
class s2sSideWork {
public:
    virtual ~s2sSideWork() = default;

    /// Called before each wait for the host of the translation, and once when that has said its last word and
    /// is `at_work` no more. How soon it wants to be called again, however
    /// long the host says nothing; no value for when one of the links has something. Never throws.
    virtual std::optional<std::chrono::milliseconds> attend(s2sHostLink & /*current*/, bool /*at_work*/)
    {
        return std::nullopt;
    }
    /// To be waited for along with the host of the translation; valid until the next call of attend.
    virtual std::vector<s2sHostLink *> links() { return {}; }
    /// Folders that any host started now is to remove too when this process is gone.
    virtual std::vector<std::string> folders_in_use() const { return {}; }
    /// Files that the translation has put in their places.
    virtual void files_changed(std::vector<std::filesystem::path> const & /*files*/) {}
};
