#include "sdu/sduServices.h"

sduServices::~sduServices() = default;

int sduServices::find_service(sduServiceKey const & key, sduBaseServicePtr & holder) const
{
    auto const found = m_services.find(key);
    return found != m_services.end() && holder.copy_in(*found->second) ? 1 : 0;
}

void sduServices::add_service(sduServiceKey const & key, sduBaseServicePtr const & service)
{
    m_services.insert_or_assign(key, service.make_new());
}

void sduServices::remove_all_services()
{
    m_services.clear();
}
