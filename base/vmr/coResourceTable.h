#pragma once

#include <cstdint>
#include <map>

#include "ut/utString.h"

/// The identity of a resource. Names are compared byte for byte.
class coResourceKeyBase {
public:
    explicit coResourceKeyBase(utString resource_name) : name(std::move(resource_name)) {}

    utString name;
};

/// One resource of a table. A table owns its resources and their keys.
class coResourceBase {
public:
    coResourceKeyBase * key = nullptr;

    /// The stored value, which serves to compare resources. What a user sees and edits is
    /// sdbResourceHandler's text.
    virtual utString value_text() const = 0;
    virtual ~coResourceBase() = default;

protected:
    coResourceBase() = default;
    coResourceBase(coResourceBase const &) = delete;
    coResourceBase & operator=(coResourceBase const &) = delete;
};

/// A collection of resources, no two of one name. A pointer to a resource stays valid until that resource is
/// removed, whatever happens to others.
class coResourceTable {
public:
    coResourceTable() = default;
    coResourceTable(coResourceTable const & other);
    coResourceTable & operator=(coResourceTable const & other);

    /// The resource with the name of `resource_key`; null when there is none, or for a null key.
    coResourceBase * lookup_resource(coResourceKeyBase const * resource_key);
    coResourceBase const * lookup_resource(coResourceKeyBase const * resource_key) const;

    /// Stores `value` as it stands, adding the resource if it is absent.
    void set_value(utString const & name, utString const & value);
    utString value(utString const & name) const; ///< invalid when there is no such resource
    void remove(utString const & name);
    int count() const { return static_cast<int>(m_resources.size()); }
    bool empty() const { return m_resources.empty(); }
    /// Tables with equal revisions have equal content. A change gives a table a revision that no table had
    /// before.
    std::uint64_t revision() const { return m_revision; }

private:
    friend class coResourceIterator;

    class Resource : public coResourceBase {
    public:
        explicit Resource(utString name) : m_key(std::move(name)) { key = &m_key; }
        utString value_text() const override { return m_value; }
        void set(utString const & value) { m_value = value; }

    private:
        coResourceKeyBase m_key;
        utString m_value;
    };

    std::map<utString, Resource> m_resources;
    std::uint64_t m_revision = 0;
};
