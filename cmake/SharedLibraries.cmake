# The component as shared libraries for other hosts: QuorvelTask2 (the logic
# and the store) and QuorvelTask2Qt (the same with the Qt views and the real
# ports, for hosts that want the real windows; a host links one of the
# two). They are linked from the objects the static libraries compiled
# already, so nothing compiles twice, and the tests keep linking the static
# layers. The views library holds the logic too, so a view may call any
# class of it without that class joining the public interface.

# Links a shared library from the objects of every static library that the
# CMakeLists.txt of the given folders define, so a layer added there joins
# it without further ado; call it after those folders. The libraries those
# layers link from outside (SQLite, Qt, Enchant) it links privately.
# Symbols stay hidden unless their declaration carries QV_EXPORT
# (src/Export.h).
function(qv_shared_library name)
  cmake_parse_arguments(arg "" "" "FOLDERS;PUBLIC" ${ARGN})
  set(objects)
  set(outside)
  set(includes_here)
  foreach(folder IN LISTS arg_FOLDERS)
    get_property(targets DIRECTORY ${CMAKE_SOURCE_DIR}/${folder} PROPERTY BUILDSYSTEM_TARGETS)
    foreach(target IN LISTS targets)
      get_target_property(type ${target} TYPE)
      if(type STREQUAL "STATIC_LIBRARY")
        list(APPEND objects $<TARGET_OBJECTS:${target}>)
        get_target_property(links ${target} LINK_LIBRARIES)
        list(FILTER links EXCLUDE REGEX "^qv_|-NOTFOUND$")
        list(APPEND outside ${links})
      endif()
    endforeach()
    list(APPEND includes_here ${CMAKE_SOURCE_DIR}/${folder})
  endforeach()
  list(REMOVE_DUPLICATES outside)
  add_library(${name} SHARED ${objects})
  set_target_properties(${name} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION})
  target_link_libraries(${name} PUBLIC ${arg_PUBLIC} PRIVATE ${outside})
  target_include_directories(${name} INTERFACE
    "$<BUILD_INTERFACE:${includes_here}>" "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>")
  target_compile_features(${name} INTERFACE cxx_std_20)
  # A symbol that no part defines fails here, not in a host.
  # (Sanitized builds leave the runtime's symbols to the executable.)
  if(NOT QV_SANITIZE)
    target_link_options(${name} PRIVATE LINKER:--no-undefined)
  endif()
endfunction()

# Installs headers of a shared library's interface under include/quorvel/,
# keeping their folders, with their own include lines naming each other as
# <quorvel/...> (so a host needs no include path but the one include/), and
# puts a forwarding header for each at the top: <quorvel/clsTask2.h>. The
# installed copies are made at configure time, again whenever a header
# changes.
# The include line a header's "name" becomes in its installed copy.
function(qv_installed_include name out)
  get_filename_component(leaf "${name}" NAME)
  if(EXISTS ${CMAKE_SOURCE_DIR}/src/${name})
    set(path ${name})
  elseif(EXISTS ${CMAKE_SOURCE_DIR}/qt/${name})
    set(path qt/${name})
  elseif(name MATCHES "^values/" AND EXISTS ${CMAKE_SOURCE_DIR}/src/values/types/${leaf})
    set(path values/types/${leaf})
  elseif(name MATCHES "^values/" AND EXISTS ${CMAKE_SOURCE_DIR}/src/values/settings/${leaf})
    set(path values/settings/${leaf})
  else()
    message(FATAL_ERROR "A public header includes ${name}, which is not in the tree")
  endif()
  set(${out} "#include <quorvel/${path}>" PARENT_SCOPE)
endfunction()

# Writes a file only when its text changes, so an install copies only what did.
function(qv_write_if_changed file text)
  if(EXISTS ${file})
    file(READ ${file} old)
    if(old STREQUAL text)
      return()
    endif()
  endif()
  file(WRITE ${file} "${text}")
endfunction()

function(qv_public_headers library base)
  file(RELATIVE_PATH prefix ${CMAKE_SOURCE_DIR} ${base})
  if(prefix)
    set(prefix "${prefix}/")
  endif()
  foreach(pattern IN LISTS ARGN)
    file(GLOB headers CONFIGURE_DEPENDS RELATIVE ${base} ${base}/${pattern})
    if(NOT headers)
      message(FATAL_ERROR "No public header matches ${pattern}")
    endif()
    foreach(header IN LISTS headers)
      get_filename_component(dir "${header}" DIRECTORY)
      get_filename_component(file "${header}" NAME)
      # A src/ header sits under its folder; qt/'s keep theirs, qt/ included.
      string(REGEX REPLACE "^src/" "" installed "${prefix}${header}")
      set_property(DIRECTORY ${CMAKE_SOURCE_DIR} APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${base}/${header})
      file(READ ${base}/${header} text)
      string(REGEX MATCHALL "#include \"[^\"]+\"" lines "${text}")
      list(REMOVE_DUPLICATES lines)
      foreach(line IN LISTS lines)
        string(REGEX REPLACE "^#include \"(.*)\"$" "\\1" name "${line}")
        qv_installed_include("${name}" installed_line)
        string(REPLACE "${line}" "${installed_line}" text "${text}")
      endforeach()
      set(copy ${CMAKE_BINARY_DIR}/installed-headers/quorvel/${installed})
      qv_write_if_changed(${copy} "${text}")
      get_filename_component(copydir "${installed}" DIRECTORY)
      install(FILES ${copy} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/quorvel/${copydir} COMPONENT dev)
      if(dir STREQUAL "")
        continue()
      endif()
      get_property(taken GLOBAL PROPERTY QV_PUBLIC_NAMES)
      if(file IN_LIST taken)
        message(FATAL_ERROR "Two public headers are named ${file}")
      endif()
      set_property(GLOBAL APPEND PROPERTY QV_PUBLIC_NAMES ${file})
      set(forward ${CMAKE_BINARY_DIR}/include/quorvel/${file})
      file(CONFIGURE OUTPUT ${forward} CONTENT "#pragma once\n#include <quorvel/${installed}>\n")
      install(FILES ${forward} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/quorvel COMPONENT dev)
      set_property(GLOBAL APPEND PROPERTY QV_PUBLIC_HEADERS_${library} ${file})
    endforeach()
  endforeach()
endfunction()
