#pragma once

#include <functional>
#include <vector>

namespace tests {

/// A state of a dialog that a picture is made of: `open` returns when the dialog is closed.
struct Scene {
    const char *name;
    std::function<void()> open;
};

std::vector<Scene> valueScenes();               ///< the boxes behind prompts()

} // namespace tests
