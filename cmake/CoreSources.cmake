# Every source of the core library: the plain folders, and platform/ without the
# folders of its real implementations.
file(GLOB_RECURSE TRAJ_CORE_SOURCES CONFIGURE_DEPENDS
  ${CMAKE_CURRENT_SOURCE_DIR}/model/*.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/files/*.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/editor/*.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/demo/*.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/platform/*.cpp)
list(FILTER TRAJ_CORE_SOURCES EXCLUDE REGEX "/platform/(qt|gl|sdl)/")
