#pragma once

#include <functional>

class Base;

/// The whole program: its window with all screens, on the user's database.
/// @param prete called once the window is shown and the database is loaded
/// @return the exit code
int lancerProgramme(int argc, char **argv, const std::function<void(Base &)> &prete = {});
