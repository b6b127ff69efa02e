# The bottom library of shell/: values, settings and shared routines, on which the subsystems stand. The
# program at the top of shell/ is built by its CMakeLists.txt.
norvane_library(norvane_base
  SOURCES
    "${PROJECT_SOURCE_DIR}/shell/CustomerSettings.cpp"
    "${PROJECT_SOURCE_DIR}/shell/SharedRoutines.cpp"
  LINKS norvane_platform)
