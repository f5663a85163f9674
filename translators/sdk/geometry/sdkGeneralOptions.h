#pragma once

#include "sdk/geometry/sdkEntityFilter.h"
#include "sdk/geometry/sdkPolylines.h"
#include "sdk/geometry/sdkTessellation.h"
#include "sdk/sdkContext.h"
#include "sdk/sdkLengthUnit.h"

// The general options as the services take them. What the manifest does not declare has its usual value.
sdkEntityKinds sdk_entity_kinds(sdkOptions const & options);
sdkPolylineTolerances sdk_polyline_tolerances(sdkOptions const & options);
// The angle is no general option; in degrees.
sdkTessellationTolerances sdk_tessellation_tolerances(sdkOptions const & options, double angle);
sdkLengthUnit const & sdk_output_unit(sdkOptions const & options);

// Drops the entities that vmrOptProcessWireframe and vmrOptProcessSurfaces turn off, and says how many.
sdkFilterCounts sdk_filter_by_options(sdkDocument & document, TDF_LabelSequence const & parts,
                                      sdkContext const & context);

// Says how many entities the two options have dropped; nothing when there were none.
void sdk_report_dropped(sdkEntityCount const & dropped, sdkReporter & reporter);

// Says why nothing is translated, for the writer that finds no entities in the document.
void sdk_report_nothing(sdkContext const & context, bool filtered);
