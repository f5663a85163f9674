#include "s2s/s2sTranslate.h"

#include "s2s/s2sWrapperBase.h"

s2sTranslate::s2sTranslate(s2sWrapperBase const * wrapper, vmrabsAppInfo const *) : m_wrapper(wrapper) {}

void s2sTranslate::run()
{
    m_result = m_wrapper->run();
}
