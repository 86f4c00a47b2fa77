#pragma once

#include "base/ustring.h"
#include "renderer/axes/ticks.h"

namespace vxrenderer {

/// The steps that suit an axis with a title, in markup.
///
/// An axis is in degrees if its title ends with a sign of degrees, `deg`, `degree` or `degrees`, in brackets or not:
/// "Longitude in degrees", "Phase (deg)". A compass direction may follow, as in "Latitude [degrees north]". Degrees of
/// a temperature have the letter of their scale after them, and "Stress at 45 degrees" is in no degrees at all.
TickSteps stepsOf(const vxbase::UString& title);

} // namespace vxrenderer
