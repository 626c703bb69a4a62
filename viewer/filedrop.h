#pragma once

#include <QString>

class QDropEvent;
class QMimeData;

/// Path of the file that a drag carries, when it is exactly one local file; else empty.
QString draggedFile(const QMimeData* data);

/// Answers a drag or drop of one local file: accepted as a copy, whatever else the source proposes,
/// since the source of a move deletes its file. Ignored where the source allows no copy. Returns
/// the path of the file when it is accepted, else an empty string.
QString acceptedFile(QDropEvent* event);
