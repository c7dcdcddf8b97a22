#pragma once

#include <QtGlobal>

#include <functional>

/// What a long action calls while it runs: with 0 at its beginning, then with how many lines are done.
/// @return whether it goes on; false when the clerk has stopped it
using Avancement = std::function<bool(qint64 lignes)>;
