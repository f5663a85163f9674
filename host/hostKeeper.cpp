#include "host/hostKeeper.h"

#include <cerrno>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace {

// Takes the names of more folders, each with a zero behind it, until one is empty or the host has ended.
void take_folders(int pipe, hostFolders & folders)
{
    std::string text;
    char buffer[4096];
    for (;;) {
        auto const length = ::read(pipe, buffer, sizeof buffer);
        if (length == 0 || (length < 0 && errno != EINTR)) {
            return;
        }
        text.append(buffer, length > 0 ? static_cast<std::size_t>(length) : 0);
        for (auto end = text.find('\0'); end != std::string::npos; end = text.find('\0')) {
            if (end == 0) {
                return;
            }
            folders.add(text.substr(0, end));
            text.erase(0, end + 1);
        }
    }
}

[[noreturn]] void keep_until_alone(int pipe, hostFolders folders)
{
    take_folders(pipe, folders);
    if (host_engine_is_gone()) {
        folders.remove();
    }
    ::_exit(0);
}

} // namespace

bool host_engine_is_gone()
{
    pollfd descriptor{STDIN_FILENO, 0, 0};
    return ::poll(&descriptor, 1, 0) > 0 && (descriptor.revents & (POLLHUP | POLLERR)) != 0;
}

hostKeeper::hostKeeper(hostFolders folders)
{
    int ends[2];
    if (::pipe(ends) != 0) {
        return;
    }
    m_process = ::fork();
    if (m_process == 0) {
        ::close(ends[1]);
        keep_until_alone(ends[0], std::move(folders));
    }
    ::close(ends[0]);
    m_pipe = ends[1];
}

void hostKeeper::keep(std::string const & folder) const
{
    if (!folder.empty()) {
        tell(folder);
    }
}

void hostKeeper::finish()
{
    // Others may hold the pipe open, and a library that runs wild may have written into it: the first of the
    // two ends whatever that was.
    bool const told = tell({}) && tell({});
    while (told && m_process > 0 && ::waitpid(m_process, nullptr, 0) < 0 && errno == EINTR) {
    }
    m_process = -1;
}

bool hostKeeper::tell(std::string const & folder) const
{
    std::string_view rest(folder.c_str(), folder.size() + 1);
    while (!rest.empty()) {
        auto const written = ::write(m_pipe, rest.data(), rest.size());
        if (written < 0 && errno != EINTR) {
            return false;
        }
        rest.remove_prefix(written > 0 ? static_cast<std::size_t>(written) : 0);
    }
    return true;
}
