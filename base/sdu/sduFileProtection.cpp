#include "sdu/sduFileProtection.h"

#include <utility>

#include "sdu/sduFileRegistry.h"

sduFileRegistry & sduFileRegistry::instance()
{
    // Never destroyed, since a protection may live in an object that is.
    static auto * const registry = new sduFileRegistry;
    return *registry;
}

void sduFileRegistry::remove(apFileIdentity const & file)
{
    auto const found = m_protections.find(file);
    if (found != m_protections.end() && --found->second == 0)
        m_protections.erase(found);
}

sduFileProtection::sduFileProtection(utString const & path)
{
    auto & registry = sduFileRegistry::instance();
    std::scoped_lock const lock(registry.mutex());
    m_file = ap_file_identity(path.str());
    if (m_file)
        registry.add(*m_file);
}

sduFileProtection::sduFileProtection(sduFileProtection && other) noexcept
    : m_file(std::exchange(other.m_file, std::nullopt))
{
}

sduFileProtection & sduFileProtection::operator=(sduFileProtection && other) noexcept
{
    if (this != &other) {
        release();
        m_file = std::exchange(other.m_file, std::nullopt);
    }
    return *this;
}

void sduFileProtection::release()
{
    if (!m_file)
        return;
    auto & registry = sduFileRegistry::instance();
    std::scoped_lock const lock(registry.mutex());
    registry.remove(*m_file);
    m_file.reset();
}
