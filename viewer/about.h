#pragma once

#include <QString>

/// What the program says about itself as plain text: what it is for, the versions of its parts, and
/// its license.
QString aboutText();
