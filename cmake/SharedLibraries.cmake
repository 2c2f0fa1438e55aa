# The component as shared libraries for other hosts: QuorvelTask2 (the logic
# and the store) and QuorvelTask2Qt (the Qt views and the real ports). They
# are linked from the objects the layers' static libraries compiled already,
# so nothing compiles twice, and the tests keep linking the static layers.

# Adds the objects of a layer's static library to a shared library.
function(qv_shared_part shared layer)
  set_property(GLOBAL APPEND PROPERTY QV_PARTS_${shared} ${layer})
endfunction()

# Links the shared library from every part added so far. Symbols stay
# hidden unless their declaration carries QV_EXPORT (src/Export.h).
function(qv_shared_library name)
  cmake_parse_arguments(arg "" "" "PUBLIC;PRIVATE" ${ARGN})
  get_property(parts GLOBAL PROPERTY QV_PARTS_${name})
  set(objects)
  foreach(part IN LISTS parts)
    list(APPEND objects $<TARGET_OBJECTS:${part}>)
  endforeach()
  add_library(${name} SHARED ${objects})
  set_target_properties(${name} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION})
  target_link_libraries(${name} PUBLIC ${arg_PUBLIC} PRIVATE ${arg_PRIVATE})
  target_include_directories(${name} INTERFACE
    $<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}/src>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/quorvel>)
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
