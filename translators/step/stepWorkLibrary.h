#pragma once

#include <StepSelect_WorkLibrary.hxx>

#include <set>

// Open CASCADE asks each entity of a file that it has parsed what it refers to, and asks lists that were
// empty in the file though it has none. This library marks entities that have such a list, before they are
// asked, as it does itself where a parameter cannot be read.
class stepWorkLibrary : public StepSelect_WorkLibrary {
    DEFINE_STANDARD_RTTI_INLINE(stepWorkLibrary, StepSelect_WorkLibrary)

public:
    // The numbers of instances in the file.
    explicit stepWorkLibrary(std::set<int> const & empty_lists) : m_empty_lists(empty_lists) {}

    Standard_Integer ReadStream(char const * name, std::istream & stream,
                                Handle(Interface_InterfaceModel) & model,
                                Handle(Interface_Protocol) const & protocol) const override;

private:
    std::set<int> m_empty_lists;
};
