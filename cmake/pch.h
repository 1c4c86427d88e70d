// The one precompiled header: small on purpose, what nearly every file needs.
#pragma once
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <utility>
#include <vector>
