# The part of ui/ that every form needs, whatever it shows: look, wait pointer, message boxes.
norvane_library(norvane_ui_base MOC
  SOURCES
    "${PROJECT_SOURCE_DIR}/ui/Announcement.cpp"
    "${PROJECT_SOURCE_DIR}/ui/Appearance.cpp"
    "${PROJECT_SOURCE_DIR}/ui/EventTurns.cpp"
    "${PROJECT_SOURCE_DIR}/ui/FormKit.cpp"
    "${PROJECT_SOURCE_DIR}/ui/FormStyle.cpp"
    "${PROJECT_SOURCE_DIR}/ui/FrmSearch.cpp"
    "${PROJECT_SOURCE_DIR}/ui/MessageBoxes.cpp"
    "${PROJECT_SOURCE_DIR}/ui/RegisterPicture.cpp"
    "${PROJECT_SOURCE_DIR}/ui/SpokenCombos.cpp"
    "${PROJECT_SOURCE_DIR}/ui/SpokenItems.cpp"
    "${PROJECT_SOURCE_DIR}/ui/StatusLine.cpp"
  LINKS Qt6::Widgets norvane_platform)
