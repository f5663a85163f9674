#include "sglProgressDialogBase.h"

#include "sglNlsHelp.h"

sglProgressDialogBase::sglProgressDialogBase(wxWindow * parent, s2sThreadComm * channel,
                                             utString const & resource_name)
    : sglDialog(resource_name, "vmrgrlib", parent), m_channel(channel)
{
}

void sglProgressDialogBase::fileLabel(utString const &) {}

void sglProgressDialogBase::operationLabel(utString const &) {}

int sglProgressDialogBase::begin(sglTranslation const *)
{
    getNlsHelp()->set_translating(1);
    return ShowModal();
}

void sglProgressDialogBase::Lock()
{
    m_channel->getLock()->enter();
}

void sglProgressDialogBase::Unlock()
{
    m_channel->getLock()->leave();
}
