# The core must stay free of Qt, OpenGL, SDL and Assimp: it is shared by the
# command-line companion and tested without a display. Two checks, both fatal:
# what the target links, and what its sources include.
function(check_core_is_plain target)
  get_target_property(libs ${target} LINK_LIBRARIES)
  get_target_property(ilibs ${target} INTERFACE_LINK_LIBRARIES)
  foreach(lib IN LISTS libs ilibs)
    if(lib MATCHES "(Qt|OpenGL|GL|SDL|assimp|EGL)")
      message(FATAL_ERROR "${target} must not link ${lib}")
    endif()
  endforeach()
  get_target_property(sources ${target} SOURCES)
  file(GLOB_RECURSE headers CONFIGURE_DEPENDS
    ${CMAKE_SOURCE_DIR}/model/*.h ${CMAKE_SOURCE_DIR}/files/*.h
    ${CMAKE_SOURCE_DIR}/editor/*.h ${CMAKE_SOURCE_DIR}/demo/*.h
    ${CMAKE_SOURCE_DIR}/platform/*.h ${CMAKE_SOURCE_DIR}/session/*.h
    ${CMAKE_SOURCE_DIR}/securite/*.h ${CMAKE_SOURCE_DIR}/frise/*.h
    ${CMAKE_SOURCE_DIR}/scene/*.h ${CMAKE_SOURCE_DIR}/equipe/*.h)
  foreach(f IN LISTS sources headers)
    file(STRINGS ${f} bad REGEX "^[ \t]*#[ \t]*include[ \t]*[<\"](Q[A-Za-z]+|Qt[A-Za-z]+/|SDL|GL/|assimp/|gui/)")
    if(bad)
      message(FATAL_ERROR "${f} is part of ${target} and must not include: ${bad}")
    endif()
  endforeach()
endfunction()
