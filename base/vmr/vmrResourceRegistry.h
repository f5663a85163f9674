#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "vmr/coResourceTable.h"
#include "vmr/vmrResourceDeclaration.h"

/// Makes the resources of a translator known to this process, which happens when the translator is loaded.
/// The general resources are known from the beginning. What is known stays known to the end; a second
/// declaration of a name is passed over. Returns the names whose second declaration has another type or
/// default than the first. Any thread.
std::vector<std::string> vmr_register_resources(std::vector<vmrResourceDeclaration> const & declarations);

/// The declaration of a registered resource, null for others. It lives to the end of the process. Any thread.
vmrResourceDeclaration const * vmr_look_up_resource(std::string_view name);

/// The neutral form of a value of the resource `name`, or nothing when it is not legal. Every text is legal
/// for a resource that is not registered. Any thread.
std::optional<std::string> vmr_canonical_value(std::string_view name, std::string_view text);

/// A copy of the table of every registered resource at its built-in default. Any thread.
coResourceTable vmr_default_resource_table();

/// The name of the files that hold every registered resource at its built-in default, whatever the format.
inline constexpr char vmr_default_resources_name[] = "Default";

/// The table of every registered resource, at its built-in default, or at the value that a vmrApplyResource
/// of the calling thread gives it. The caller changes nothing in it. It is valid while a vmrResourceTableMark
/// lives, or a vmrApplyResource where one gives the values, and otherwise until more resources are
/// registered.
coResourceTable * vmr_resource_table_inquire();

/// While one lives, on whatever thread, each table that vmr_resource_table_inquire has given stays valid.
class vmrResourceTableMark {
public:
    vmrResourceTableMark();
    ~vmrResourceTableMark();
    vmrResourceTableMark(vmrResourceTableMark const &) = delete;
    vmrResourceTableMark & operator=(vmrResourceTableMark const &) = delete;
};
