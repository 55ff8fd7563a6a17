# Scripts that drive the screen without a display.
add_library(orvendal_guion STATIC
  ${CMAKE_CURRENT_LIST_DIR}/guion_commands.cpp
  ${CMAKE_CURRENT_LIST_DIR}/guion_hands.cpp
  ${CMAKE_CURRENT_LIST_DIR}/guion_library.cpp
  ${CMAKE_CURRENT_LIST_DIR}/guion_parser.cpp
  ${CMAKE_CURRENT_LIST_DIR}/guion_properties.cpp
  ${CMAKE_CURRENT_LIST_DIR}/guion_runner.cpp
  ${CMAKE_CURRENT_LIST_DIR}/guion_show.cpp
  ${CMAKE_CURRENT_LIST_DIR}/guion_values.cpp
  ${CMAKE_CURRENT_LIST_DIR}/guion_world.cpp
  ${CMAKE_CURRENT_LIST_DIR}/picture_place.cpp)
target_link_libraries(orvendal_guion PUBLIC orvendal_host orvendal_component orvendal_headless)
