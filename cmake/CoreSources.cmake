# Every source of the core library: the model and the files, the editor and the
# demonstration, and the platform's interfaces with their recording doubles.
file(GLOB_RECURSE TRAJ_CORE_SOURCES CONFIGURE_DEPENDS
  ${CMAKE_CURRENT_SOURCE_DIR}/model/*.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/files/*.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/editor/*.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/demo/*.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/platform/*.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/session/*.cpp
  # What goes beyond the original, one folder per capability.
  ${CMAKE_CURRENT_SOURCE_DIR}/securite/*.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/frise/*.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/scene/*.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/equipe/*.cpp
  ${CMAKE_CURRENT_SOURCE_DIR}/video/*.cpp)
