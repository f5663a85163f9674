#include "step/stepOperators.h"

#include "step/stepReferences.h"

#include <StepGeom_CartesianPoint.hxx>
#include <StepGeom_CartesianTransformationOperator3d.hxx>
#include <StepGeom_Direction.hxx>
#include <TCollection_HAsciiString.hxx>

#include <charconv>
#include <unordered_map>

namespace {

using Operator = Handle(StepGeom_CartesianTransformationOperator);

class Completion {
public:
    explicit Completion(Handle(StepData_StepModel) const & model)
    {
        for (int index = 1; index <= model->NbEntities(); ++index) {
            m_entities.emplace(model->IdentLabel(model->Value(index)), model->Value(index));
        }
    }

    // Name, two axes, origin, scale, and in space the third axis.
    bool complete(Operator const & entity, std::vector<std::string> const & parameters) const
    {
        auto const in_space = Handle(StepGeom_CartesianTransformationOperator3d)::DownCast(entity);
        if (parameters.size() != (in_space.IsNull() ? 5U : 6U)) {
            return false;
        }
        auto const origin = Handle(StepGeom_CartesianPoint)::DownCast(referred(parameters[3]));
        Handle(StepGeom_Direction)
            const axes[] = {direction(parameters[1]), direction(parameters[2]),
                            in_space.IsNull() ? Handle(StepGeom_Direction)() : direction(parameters[5])};
        bool const scaled = parameters[4] != "$";
        double scale = 1;
        auto const & number = parameters[4];
        if (origin.IsNull() ||
            (scaled &&
             std::from_chars(number.data(), number.data() + number.size(), scale).ec != std::errc())) {
            return false;
        }
        Handle(TCollection_HAsciiString) const name = new TCollection_HAsciiString("");
        if (in_space.IsNull()) {
            entity->Init(name, !axes[0].IsNull(), axes[0], !axes[1].IsNull(), axes[1], origin, scaled, scale);
        } else {
            in_space->Init(name, !axes[0].IsNull(), axes[0], !axes[1].IsNull(), axes[1], origin, scaled,
                           scale, !axes[2].IsNull(), axes[2]);
        }
        return true;
    }

private:
    Handle(Standard_Transient) referred(std::string const & parameter) const
    {
        int number = 0;
        if (parameter.starts_with('#')) {
            std::from_chars(parameter.data() + 1, parameter.data() + parameter.size(), number);
        }
        auto const found = m_entities.find(number);
        return found == m_entities.end() ? Handle(Standard_Transient)() : found->second;
    }

    Handle(StepGeom_Direction) direction(std::string const & parameter) const
    {
        return Handle(StepGeom_Direction)::DownCast(referred(parameter));
    }

    std::unordered_map<int, Handle(Standard_Transient)> m_entities;
};

} // namespace

std::set<Standard_Transient const *> step_complete_operators(Handle(StepData_StepModel) const & model,
                                                             std::string_view text)
{
    std::set<int> numbers;
    std::vector<Operator> operators;
    for (int index = 1; index <= model->NbEntities(); ++index) {
        auto const entity = Operator::DownCast(model->Value(index));
        if (!entity.IsNull() && entity->LocalOrigin().IsNull()) {
            operators.push_back(entity);
            numbers.insert(model->IdentLabel(entity));
        }
    }
    std::set<Standard_Transient const *> completed;
    if (operators.empty()) {
        return completed;
    }
    auto const definitions = step_definitions_of(numbers, text);
    Completion const completion(model);
    for (auto const & entity : operators) {
        auto const definition = definitions.find(model->IdentLabel(entity));
        if (definition != definitions.end() &&
            completion.complete(entity, step_parameters(definition->second))) {
            completed.insert(entity.get());
        }
    }
    return completed;
}
