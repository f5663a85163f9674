#include "ap/apCriticalSection.h"

#include "ap/apPosixOperations.h"

apCriticalSection::apCriticalSection(apISynchOperations const * operations)
    : m_lock(operations ? operations->make_lock() : apPosixSynchOperations().make_lock())
{
}
