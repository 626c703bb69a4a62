#pragma once

class QPainter;

/// Paints the skin behind the controls of a module into the rectangle (0, 0, W, H): tiled centre,
/// edges at the left, right and bottom, and the two lower corners; the title bar stands above. The
/// images come from the application's resources; a missing one leaves its part unpainted.
void paintModuleBackground(QPainter* painter, int W, int H);
