#pragma once

#include <optional>
#include <string>

#include "sdb/sdbValidator.h"
#include "ut/utPtr.h"
#include "vmr/vmrTableInstance.h"

/// Moves the value of one resource between a table and its text form. It is made on the stack around a name,
/// used and gone.
class sdbResourceHandler {
public:
    /// The validator is not owned and must live while the handler is in use; without one, numbers are legal
    /// in their neutral form only.
    sdbResourceHandler(utObserverPtr<sdbValidator> validator, utString const & name);

    /// Whether `value` is a legal text for the resource's type and within its range or choices. Zero for a
    /// resource that is not registered.
    virtual int validate(utString const & value) const;
    /// Sets the resource as an override of `instance`. Zero, changing nothing, when `value` is not legal. A
    /// resource that is not registered takes any text where `instance` has it already, so that the values of
    /// a file survive a run in which their translator is not loaded, and none elsewhere.
    virtual int insert(utString const & value, vmrTableInstance & instance) const;
    /// The value as the user sees it and insert reads it back: "True" or "False" for a boolean, otherwise the
    /// neutral form. Invalid for null.
    virtual utString display(coResourceBase const * resource);
    virtual ~sdbResourceHandler() = default;

    /// Copies the resource as it stands into the overrides of `instance`, even with a text that is not legal.
    void add_resource(coResourceBase const * resource, vmrTableInstance & instance) const;

private:
    std::optional<std::string> neutral_text(utString const & value) const;

    utObserverPtr<sdbValidator> m_validator;
    utString m_name;
};
