# Read by cpack for each kind of package: where each of the installed parts is in it.
set(build "${CPACK_BUILD_FOLDER}")
if(CPACK_GENERATOR STREQUAL "DEB")
  # Each row has its whole path, because the prefix of the package comes after the folder of a row.
  set(CPACK_PACKAGING_INSTALL_PREFIX "/")
  set(CPACK_INSTALL_CMAKE_PROJECTS
    "${build};norvane;program;/usr/lib/norvane"
    "${build};norvane;data;/usr/share/norvane"
    "${build};norvane;system;/usr")
else()
  set(CPACK_PACKAGE_FILE_NAME "norvane-${CPACK_PACKAGE_VERSION}-linux-${CPACK_SYSTEM_PROCESSOR}")
  set(CPACK_INSTALL_CMAKE_PROJECTS
    "${build};norvane;program;/program"
    "${build};norvane;data;/program"
    "${build};norvane;portable;/")
endif()
