#include "windows/drop/kitFileManager.h"

#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

kitFileManager::kitFileManager(std::vector<std::string> const & files)
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) {
        ADD_FAILURE() << "no pipe";
        return;
    }
    std::vector<char *> words{const_cast<char *>(KIT_DRAG_SOURCE)};
    for (auto const & file : files)
        words.push_back(const_cast<char *>(file.c_str()));
    words.push_back(nullptr);
    m_process = fork();
    if (m_process == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        dup2(ends[1], 1);
        execv(words[0], words.data());
        _exit(127);
    }
    close(ends[1]);
    m_answers = ends[0];
    fcntl(m_answers, F_SETFL, O_NONBLOCK);
}

kitFileManager::~kitFileManager()
{
    kill(m_process, SIGTERM);
    waitpid(m_process, nullptr, 0);
    close(m_answers);
}

void kitFileManager::listen()
{
    char part[256];
    for (ssize_t count; (count = read(m_answers, part, sizeof part)) > 0;)
        m_said.append(part, static_cast<std::size_t>(count));
}

bool kitFileManager::ready()
{
    listen();
    return m_said.find('\n') != std::string::npos;
}

wxPoint kitFileManager::middle()
{
    wxPoint place;
    EXPECT_EQ(std::sscanf(m_said.c_str(), "at %d %d", &place.x, &place.y), 2) << m_said;
    return place;
}

bool kitFileManager::drags()
{
    listen();
    return m_said.ends_with("dragging\n");
}

bool kitFileManager::has_dropped()
{
    listen();
    return m_said.ends_with("\ndropped\n");
}
