#pragma once

namespace refhost::village {

/// The frame of the map, in the national grid.
struct Sheet {
    double west, south, east, north;
};
inline constexpr Sheet kSheet{650000, 239450, 650850, 240250};

} // namespace refhost::village
