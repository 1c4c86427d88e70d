#pragma once

namespace refhost {

class SqliteDoc;

/// Fills an empty document with a sample: the cadastral map of a village, always the same one. Coordinates
/// are metres in the range of the national grid (EOV), rounded to the centimetre as surveyors store them.
void makeVillage(SqliteDoc &);

} // namespace refhost
