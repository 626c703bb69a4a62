#pragma once

class QPainter;

/// Paints the background of a module panel into (0, 0, W, H): a tiled centre, left, right and
/// bottom edges and the two bottom corners. There is no top edge, the title bar stands there. The
/// images are resources of the application; a missing one leaves its part unpainted.
void paintModuleBackground(QPainter* painter, int W, int H);
