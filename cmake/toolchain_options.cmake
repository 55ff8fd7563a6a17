find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # What is compiled with precompiled headers is kept too.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE_PROGRAM})
endif()

# What every target of ours is built with; outside libraries keep their own flags.
add_library(orvendal_options INTERFACE)
target_include_directories(orvendal_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(orvendal_options INTERFACE -Wall -Wextra -Wpedantic -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 sees overlapping copies in plain concatenations of strings at -O3.
  target_compile_options(orvendal_options INTERFACE -Wno-restrict)
endif()
if(ORVENDAL_SANITIZE)
  target_compile_options(orvendal_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                                                    -fno-omit-frame-pointer)
  target_link_options(orvendal_options INTERFACE -fsanitize=address,undefined)
endif()
