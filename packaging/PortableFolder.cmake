# Runs while the portable folder is built, after the program is in program/: copies the libraries and plugins
# that not every desktop has, and their licences. qt_plugins: folder of the toolkit's plugins.
set(folder "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")
set(programs "${folder}/program/norvane" "${folder}/program/norvane-shop" "${folder}/program/norvane-former")

# Plugins for X11 and offscreen windows, pictures, typing of accents, printers.
set(plugins
  platforms/libqxcb.so
  platforms/libqoffscreen.so
  imageformats/libqgif.so
  imageformats/libqico.so
  imageformats/libqjpeg.so
  platforminputcontexts/libcomposeplatforminputcontextplugin.so
  platforminputcontexts/libibusplatforminputcontextplugin.so
  printsupport/libcupsprintersupport.so)

# Libraries taken from the system: the C library, which matches its kernel and loader, and those that each
# desktop has and configures, with their dependencies. A second copy of these would conflict with the first.
set(of_system
  "^ld-linux" "^libc\\.so" "^libm\\.so" "^libdl\\.so" "^libpthread\\.so" "^librt\\.so" "^libresolv\\.so"
  "^libX11\\.so" "^libX11-xcb\\.so" "^libxcb\\.so" "^libXau\\.so" "^libXdmcp\\.so" "^libbsd\\.so" "^libmd\\.so"
  "^libfontconfig\\.so" "^libfreetype\\.so" "^libexpat\\.so" "^libpng16\\.so" "^libbrotli" "^libz\\.so")

# Copies the licences of the packages that the files came with.
function(add_licences)
  # The system may know a file by its place without /usr.
  list(TRANSFORM ARGN REPLACE "^/usr" "")
  list(TRANSFORM ARGN PREPEND "*" OUTPUT_VARIABLE patterns)
  execute_process(COMMAND dpkg-query --search ${patterns} OUTPUT_VARIABLE owners ERROR_QUIET)
  foreach(file ${ARGN})
    string(REGEX REPLACE "([.+])" "\\\\\\1" pattern "${file}")
    string(REGEX MATCH "\n([^:\n]+):[^\n]*${pattern}\n" owner "\n${owners}")
    set(package "${CMAKE_MATCH_1}")
    if(NOT owner OR NOT EXISTS "/usr/share/doc/${package}/copyright")
      message(FATAL_ERROR "No licence was found for ${file}")
    endif()
    file(COPY_FILE "/usr/share/doc/${package}/copyright" "${folder}/licences/${package}.txt")
  endforeach()
endfunction()

list(TRANSFORM plugins PREPEND "${qt_plugins}/" OUTPUT_VARIABLE plugin_files)
file(GET_RUNTIME_DEPENDENCIES
  EXECUTABLES ${programs}
  MODULES ${plugin_files}
  RESOLVED_DEPENDENCIES_VAR libraries
  PRE_EXCLUDE_REGEXES ${of_system})

file(MAKE_DIRECTORY "${folder}/libraries" "${folder}/licences")
foreach(library ${libraries})
  # Under the name that the programs ask for, without links: not every disk knows any.
  get_filename_component(name "${library}" NAME)
  file(REAL_PATH "${library}" library)
  file(COPY_FILE "${library}" "${folder}/libraries/${name}")
  list(APPEND brought "${library}")
endforeach()
add_licences(${brought})
# This one is part of the programs.
file(COPY_FILE /usr/share/doc/libsqlitecpp-dev/copyright "${folder}/licences/libsqlitecpp.txt")
foreach(plugin ${plugins})
  get_filename_component(kind "${plugin}" DIRECTORY)
  file(COPY "${qt_plugins}/${plugin}" DESTINATION "${folder}/plugins/${kind}")
endforeach()
# The old kind of run path holds for the libraries of the libraries and for the plugins, too, and unlike an environment
# variable it does not reach the tools that the program starts.
execute_process(COMMAND patchelf --force-rpath --set-rpath "$ORIGIN/../libraries" ${programs} COMMAND_ERROR_IS_FATAL ANY)
