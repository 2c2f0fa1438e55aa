# The component as shared libraries for other hosts: QuorvelTask2 (the logic
# and the store) and QuorvelTask2Qt (the Qt views and the real ports). They
# are linked from the objects the layers' static libraries compiled already,
# so nothing compiles twice, and the tests keep linking the static layers.

# Links a shared library from the objects of every static library that
# the calling CMakeLists.txt defines, so a layer added there joins it
# without further ado; call it last. The libraries those layers link from
# outside (SQLite, Qt, Hunspell) it links privately. Symbols stay hidden
# unless their declaration carries QV_EXPORT (src/Export.h).
function(qv_shared_library name)
  cmake_parse_arguments(arg "" "" "PUBLIC" ${ARGN})
  get_property(targets DIRECTORY PROPERTY BUILDSYSTEM_TARGETS)
  set(objects)
  set(outside)
  foreach(target IN LISTS targets)
    get_target_property(type ${target} TYPE)
    if(type STREQUAL "STATIC_LIBRARY")
      list(APPEND objects $<TARGET_OBJECTS:${target}>)
      get_target_property(links ${target} LINK_LIBRARIES)
      list(FILTER links EXCLUDE REGEX "^qv_|-NOTFOUND$")
      list(APPEND outside ${links})
    endif()
  endforeach()
  list(REMOVE_DUPLICATES outside)
  add_library(${name} SHARED ${objects})
  set_target_properties(${name} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION})
  target_link_libraries(${name} PUBLIC ${arg_PUBLIC} PRIVATE ${outside})
  # Installed, the headers of src/ sit in include/quorvel/, those of qt/ in
  # include/quorvel/qt/.
  file(RELATIVE_PATH folder ${CMAKE_SOURCE_DIR}/src ${CMAKE_CURRENT_SOURCE_DIR})
  if(folder STREQUAL "")
    set(installed ${CMAKE_INSTALL_INCLUDEDIR} ${CMAKE_INSTALL_INCLUDEDIR}/quorvel)
  else()
    file(RELATIVE_PATH folder ${CMAKE_SOURCE_DIR} ${CMAKE_CURRENT_SOURCE_DIR})
    set(installed ${CMAKE_INSTALL_INCLUDEDIR}/quorvel/${folder})
  endif()
  target_include_directories(${name} INTERFACE
    $<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}> "$<INSTALL_INTERFACE:${installed}>")
  target_compile_features(${name} INTERFACE cxx_std_20)
  # A hidden symbol that another part needs fails here, not in a host.
  # (Sanitized builds leave the runtime's symbols to the executable.)
  if(NOT QV_SANITIZE)
    target_link_options(${name} PRIVATE LINKER:--no-undefined)
  endif()
endfunction()

# Installs headers of a shared library's interface under include/quorvel/,
# keeping their folders (so their own includes resolve), and puts a
# forwarding header for each at the top: <quorvel/clsTask2.h>.
function(qv_public_headers library base)
  foreach(pattern IN LISTS ARGN)
    file(GLOB headers CONFIGURE_DEPENDS RELATIVE ${base} ${base}/${pattern})
    if(NOT headers)
      message(FATAL_ERROR "No public header matches ${pattern}")
    endif()
    foreach(header IN LISTS headers)
      get_filename_component(dir "${header}" DIRECTORY)
      get_filename_component(file "${header}" NAME)
      install(FILES ${base}/${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/quorvel/${dir} COMPONENT dev)
      if(dir STREQUAL "")
        continue()
      endif()
      get_property(taken GLOBAL PROPERTY QV_PUBLIC_NAMES)
      if(file IN_LIST taken)
        message(FATAL_ERROR "Two public headers are named ${file}")
      endif()
      set_property(GLOBAL APPEND PROPERTY QV_PUBLIC_NAMES ${file})
      set(forward ${CMAKE_BINARY_DIR}/include/quorvel/${file})
      file(CONFIGURE OUTPUT ${forward} CONTENT "#pragma once\n#include \"${header}\"\n")
      install(FILES ${forward} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/quorvel COMPONENT dev)
      set_property(GLOBAL APPEND PROPERTY QV_PUBLIC_HEADERS_${library} ${file})
    endforeach()
  endforeach()
endfunction()
