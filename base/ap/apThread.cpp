#include "ap/apThread.h"

#include <utility>

#include "ap/apPosixOperations.h"

apThread::apThread(std::shared_ptr<apIThreadTask> task, apIProcessThreadOperations const * operations)
{
    auto body = [kept = std::move(task)] { kept->run(); };
    m_thread = operations ? operations->start_thread(std::move(body))
                          : apPosixProcessThreadOperations().start_thread(std::move(body));
    m_started = m_thread.joinable();
}

apThread::~apThread()
{
    join();
}

void apThread::join()
{
    if (m_thread.joinable())
        m_thread.join();
}
