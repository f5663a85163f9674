#include "step/stepValidationCheck.h"

#include "sdk/sdkStated.h"
#include "step/stepPmiSource.h"
#include "step/stepPropertyTargets.h"
#include "step/stepStatedProperties.h"

#include <NCollection_Map.hxx>
#include <STEPCAFControl_Reader.hxx>
#include <Standard_Failure.hxx>
#include <StepBasic_ProductDefinition.hxx>
#include <StepData_StepModel.hxx>

#include <algorithm>
#include <cmath>
#include <sstream>

namespace {

// Relative errors: up to the first an amount agrees, beyond the second something is wrong with the shape.
constexpr double agreeing = 1e-4;
constexpr double failing = 1e-2;

double error_of(double stated, double arrived)
{
    double const scale = std::max(std::abs(stated), std::abs(arrived));
    return scale > 0 ? std::abs(stated - arrived) / scale : 0;
}

// Files give the area of the solids alone, or that of the faces beside them, too.
double area_beside(double stated, sdkMassProperties const & arrived)
{
    return error_of(stated, arrived.solid_area) < error_of(stated, arrived.area) ? arrived.solid_area
                                                                                 : arrived.area;
}

double distance_of(gp_Pnt const & stated, sdkMassProperties const & arrived)
{
    auto const centroid = arrived.centroid();
    return centroid ? centroid->Distance(stated) : 0;
}

double centroid_error(gp_Pnt const & stated, sdkMassProperties const & arrived)
{
    if (arrived.box.IsVoid()) {
        return 1;
    }
    double const size = std::sqrt(arrived.box.SquareExtent());
    return size > 0 ? distance_of(stated, arrived) / size : 1;
}

std::string coordinates(gp_Pnt const & point)
{
    std::ostringstream text;
    text.precision(8);
    text << '(' << point.X() << ", " << point.Y() << ", " << point.Z() << ')';
    return text.str();
}

class Check {
public:
    explicit Check(sdkContext & context) : m_context(context) {}

    void compare(stepStatedProperties const & stated, stepPropertyTarget const & target)
    {
        m_stated += stated.amounts();
        m_unclear += stated.unclear;
        if (!target.known) {
            m_unclear += stated.amounts();
            return;
        }
        m_part = target.part.empty() ? m_context.file() : target.part;
        auto const arrived = measure(target);
        if (!arrived) {
            m_unclear += stated.amounts();
            return;
        }
        bool const amounts_agree = compare_amounts(stated, *arrived);
        if (stated.centroid) {
            compare_centroid(stated, *arrived, amounts_agree);
        }
    }

    void sum_up(int others)
    {
        if (m_stated > 0) {
            note(double(m_stated), double(m_agreeing),
                 sdkText("step::%s: %d of %d stated validation properties agree with what arrived",
                         m_context.file(), m_agreeing, m_stated));
        }
        if (m_unclear > 0) {
            note(std::nullopt, std::nullopt,
                 sdkText("step::%s: %d stated validation properties could not be compared, because their "
                         "units or the shapes they belong to are not known or cannot be measured",
                         m_context.file(), m_unclear));
        }
        if (others > 0) {
            note(std::nullopt, std::nullopt,
                 sdkText("step::%s: %d validation properties of other kinds (of assemblies, attributes, "
                         "annotations, curves) are not compared and are lost",
                         m_context.file(), others));
        }
    }

private:
    // Nothing when the shape cannot be measured.
    std::optional<sdkMassProperties> measure(stepPropertyTarget const & target)
    {
        try {
            auto const arrived = target.measure(m_labels);
            return arrived.finite() ? std::optional(arrived) : std::nullopt;
        } catch (Standard_Failure const &) {
            return std::nullopt;
        }
    }

    // True when the file states a volume or an area and what it states agrees.
    bool compare_amounts(stepStatedProperties const & stated, sdkMassProperties const & arrived)
    {
        bool agree = stated.volume || stated.area;
        if (stated.volume) {
            agree =
                compare_amount("validation-volume", stated.place, *stated.volume, arrived.volume,
                               "step::%s, %s: the file states a volume of %.10g mm3, but what arrived has "
                               "%.10g mm3; look for parts that are missing or damaged") &&
                agree;
        }
        if (stated.area) {
            agree = compare_amount("validation-area", stated.place, *stated.area,
                                   area_beside(*stated.area, arrived),
                                   "step::%s, %s: the file states an area of %.10g mm2, but what arrived has "
                                   "%.10g mm2; look for parts that are missing or damaged") &&
                    agree;
        }
        return agree;
    }

    bool compare_amount(char const * kind, std::string const & place, double stated, double arrived,
                        char const * text)
    {
        double const error = error_of(stated, arrived);
        if (error <= agreeing) {
            ++m_agreeing;
            return true;
        }
        // A file that states 0 has not measured.
        add(error > failing && stated != 0 ? sdkWeight::loss : sdkWeight::difference, kind, place, stated,
            arrived, sdkText(text, m_part, place, stated, arrived));
        return false;
    }

    // A shape whose volume and area are right lacks nothing, wherever its centroid lies.
    void compare_centroid(stepStatedProperties const & stated, sdkMassProperties const & arrived,
                          bool amounts_agree)
    {
        double const error = centroid_error(*stated.centroid, arrived);
        if (error <= agreeing) {
            ++m_agreeing;
            return;
        }
        auto const weight = error > failing && !amounts_agree ? sdkWeight::loss : sdkWeight::difference;
        auto const centroid = arrived.centroid();
        if (!centroid) {
            add(weight, "validation-centroid", stated.place, std::nullopt, std::nullopt,
                sdkText("step::%s, %s: the file states the centroid %s, but nothing arrived that has one",
                        m_part, stated.place, coordinates(*stated.centroid)));
            return;
        }
        add(weight, "validation-centroid", stated.place, 0.0, distance_of(*stated.centroid, arrived),
            sdkText("step::%s, %s: the file states the centroid %s, but that of what arrived is %s, %.6g mm "
                    "away (in millimetres); look for parts that are missing or in another place",
                    m_part, stated.place, coordinates(*stated.centroid), coordinates(*centroid),
                    distance_of(*stated.centroid, arrived)));
    }

    void add(sdkWeight weight, char const * kind, std::string const & place, std::optional<double> source,
             std::optional<double> output, sdkText const & text)
    {
        m_context.account().add({weight, kind, m_part, place, source, output, text});
    }

    void note(std::optional<double> source, std::optional<double> output, sdkText const & text)
    {
        m_context.account().add({sdkWeight::note, "validation-property", "", "", source, output, text});
    }

    sdkContext & m_context;
    sdkMassPropertiesOfLabels m_labels;
    std::string m_part;
    std::int64_t m_stated = 0;
    std::int64_t m_agreeing = 0;
    std::int64_t m_unclear = 0;
};

} // namespace

void step_check_validation(STEPCAFControl_Reader const & reader, stepPmiSource const * annotations,
                           sdkDocument const & document, sdkContext & context)
{
    bool const wanted = context.options().boolean("stepReadValidation");
    stepPropertyTargets const targets(reader, document.shapes());
    Check check(context);
    NCollection_Map<Handle(Standard_Transient)> products;
    auto const model = Handle(StepData_StepModel)::DownCast(reader.Reader().Model());
    auto const statements = step_stated_properties(model, [&](auto const & definition) {
        return annotations != nullptr && annotations->has(model->IdentLabel(definition));
    });
    for (auto const & stated : statements.properties) {
        auto const target = targets.find(stated.definition);
        if (wanted) {
            check.compare(stated, target);
        }
        if (!target.product.IsNull()) {
            products.Add(target.product);
        }
    }
    check.sum_up(statements.others);
    sdk_add_stated(document, products.Extent());
}
