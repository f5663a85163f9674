#pragma once

#include "step/stepReferences.h"

#include <StepData_StepModel.hxx>

#include <set>
#include <string_view>
#include <vector>

// A reference to a part of a shape that led nowhere while the file was parsed: its target is not in the file,
// or of a kind that Open CASCADE does not know.
struct stepGap {
    Handle(Standard_Transient) holder; // a shape representation or a shell
    int number = 0;                    // of what it refers to
    Handle(Standard_Transient) target; // null when the file does not have it
};

// What has to be asked of the text of a file before it is let go, because the model does not tell.
class stepTextualLinks {
public:
    stepTextualLinks() = default;
    stepTextualLinks(Handle(StepData_StepModel) const & model, std::string_view text);

    // Of constructive solids and the results of operations.
    stepReferences const & operands() const { return m_operands; }
    std::vector<stepGap> const & gaps() const { return m_gaps; }
    // Whether what the toolkit missed in the entity is among these.
    bool explain(Handle(Standard_Transient) const & entity) const
    {
        return m_explained.count(entity.get()) > 0;
    }

private:
    stepReferences m_operands;
    std::vector<stepGap> m_gaps;
    std::set<Standard_Transient const *> m_explained;
};
