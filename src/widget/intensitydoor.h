#pragma once

/// What stands behind the members that hosts ask and tell the widget by.
class IntensityDoor
{
};
