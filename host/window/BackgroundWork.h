#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace refhost {

/// Told how far the work is, 0..1; answers false when the user broke it off.
using WorkProgress = std::function<bool(double done)>;

/// Runs `work` in a thread of its own and waits for it, with a progress box when it takes longer. What `work`
/// throws is thrown here. `work` must not touch widgets, nor a document that was opened elsewhere.
void runWithProgress(QWidget &window, const QString &caption,
                     const std::function<void(const WorkProgress &)> &work);

} // namespace refhost
