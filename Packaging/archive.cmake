# SPDX-License-Identifier: GPL-3.0-or-later
# Read by cpack when everything is installed into its folder and before that is packed. For the archive it adds what
# the programs would otherwise want from the system: libraries, Qt's plugins and German words, icons, licences.
if(NOT CPACK_GENERATOR STREQUAL "TXZ")
  return()
endif()
cmake_policy(VERSION 3.25)
set(app ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/Quillon.app)
set(libraries ${app}/lib/quillon)
set(programs ${app}/bin/Quillon ${app}/bin/tallyrig)

# Only what the window makes use of: the display (X11, and none for pictures and tests), SVG drawings, dead keys,
# dialogs of the desktop, and encrypted connections.
set(plugins
  platforms/libqxcb.so platforms/libqoffscreen.so xcbglintegrations/libqxcb-egl-integration.so
  xcbglintegrations/libqxcb-glx-integration.so iconengines/libqsvgicon.so imageformats/libqsvg.so
  platforminputcontexts/libcomposeplatforminputcontextplugin.so
  platforminputcontexts/libibusplatforminputcontextplugin.so)
foreach(optional platformthemes/libqxdgdesktopportal.so tls/libqopensslbackend.so)
  if(EXISTS ${CPACK_QUILLON_QT_PLUGINS}/${optional})
    list(APPEND plugins ${optional})
  endif()
endforeach()
foreach(plugin IN LISTS plugins)
  get_filename_component(kind ${plugin} DIRECTORY)
  file(COPY ${CPACK_QUILLON_QT_PLUGINS}/${plugin} DESTINATION ${app}/plugins/${kind})
endforeach()
file(COPY ${CPACK_QUILLON_QT_TRANSLATIONS}/qtbase_de.qm DESTINATION ${app}/translations)
file(WRITE ${app}/bin/qt.conf "[Paths]\nPrefix = ..\nPlugins = plugins\nTranslations = translations\n")

# Those libraries stay out that belong to the system's kernel, graphics driver, display and fonts: ours would not
# know its files. Each desktop for X11 has them.
set(ofTheSystem
  "^(ld-linux.*|libc|libm|libdl|libpthread|librt|libresolv|libstdc\\+\\+|libgcc_s)\\.so"
  "^(libGL|libEGL|libGLX|libGLdispatch|libOpenGL|libdrm|libgbm|libX11|libX11-xcb|libxcb)\\.so"
  "^(libfontconfig|libfreetype|libexpat|libz)\\.so")
file(GLOB modules ${app}/lib/quillon/*.so ${app}/plugins/*/*.so)
file(GET_RUNTIME_DEPENDENCIES
  EXECUTABLES ${programs}
  MODULES ${modules}
  RESOLVED_DEPENDENCIES_VAR found
  UNRESOLVED_DEPENDENCIES_VAR missing
  PRE_EXCLUDE_REGEXES ${ofTheSystem})
if(missing)
  message(FATAL_ERROR "Libraries that cannot be found: ${missing}")
endif()
file(INSTALL ${found} DESTINATION ${libraries} FOLLOW_SYMLINK_CHAIN)

# The older kind of run path, for it holds for what the libraries and plugins load as well.
find_program(patchelf patchelf REQUIRED)
foreach(program IN LISTS programs)
  execute_process(COMMAND ${patchelf} --force-rpath --set-rpath "$ORIGIN/../lib/quillon" ${program}
    COMMAND_ERROR_IS_FATAL ANY)
endforeach()
# A plugin that has a path of its own would not heed that of the program.
foreach(module IN LISTS modules)
  execute_process(COMMAND ${patchelf} --remove-rpath ${module} COMMAND_ERROR_IS_FATAL ANY)
endforeach()

# Of the icon theme those drawings that the sources name.
file(GLOB_RECURSE sources ${CPACK_QUILLON_SOURCES}/Sources/Quillon/*.cpp)
set(names)
foreach(source IN LISTS sources)
  file(READ ${source} text)
  string(REGEX MATCHALL "\"[a-z]+(-[a-z]+)*\"" quoted "${text}")
  list(APPEND names ${quoted})
endforeach()
list(REMOVE_DUPLICATES names)
list(TRANSFORM names REPLACE "\"" "")
set(drawings 0)
foreach(theme breeze breeze-dark)
  foreach(group actions devices status)
    foreach(size 16 22 32)
      set(folder icons/${theme}/${group}/${size})
      foreach(name IN LISTS names)
        if(EXISTS /usr/share/${folder}/${name}.svg)
          file(REAL_PATH /usr/share/${folder}/${name}.svg drawing)
          file(COPY_FILE ${drawing} ${app}/share/icons/drawing.svg)
          file(MAKE_DIRECTORY ${app}/share/${folder})
          file(RENAME ${app}/share/icons/drawing.svg ${app}/share/${folder}/${name}.svg)
          math(EXPR drawings "${drawings} + 1")
        endif()
      endforeach()
    endforeach()
  endforeach()
endforeach()
if(drawings EQUAL 0)
  message(FATAL_ERROR "There are no Breeze icons in /usr/share/icons")
endif()

# Whose all of that is: Debian tells it of each of its packages.
file(COPY ${CPACK_QUILLON_SOURCES}/LICENSE DESTINATION ${app})
set(owners breeze-icon-theme)
foreach(file IN LISTS found plugins)
  get_filename_component(name ${file} NAME)
  execute_process(COMMAND dpkg-query --search */${name} OUTPUT_VARIABLE owner ERROR_QUIET)
  if(owner MATCHES "^([^:,]+)")
    list(APPEND owners ${CMAKE_MATCH_1})
  endif()
endforeach()
list(REMOVE_DUPLICATES owners)
foreach(owner IN LISTS owners)
  if(EXISTS /usr/share/doc/${owner}/copyright)
    file(REAL_PATH /usr/share/doc/${owner}/copyright terms)
    configure_file(${terms} ${app}/share/doc/quillon/licences/${owner} COPYONLY)
  endif()
endforeach()
