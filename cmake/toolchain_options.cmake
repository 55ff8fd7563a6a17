find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # What is compiled with precompiled headers is kept too.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE_PROGRAM})
  set(ORVENDAL_HEADERS_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros CCACHE_DEPEND=1
    ${CCACHE_PROGRAM})
endif()

# For a target that makes precompiled headers. Some that were made of other comments are no good: the compiler would
# read such a header a second time. So ccache compares the headers themselves, not what the preprocessor makes of them.
function(orvendal_keep_precompiled_headers_true target)
  if(ORVENDAL_HEADERS_LAUNCHER)
    set_target_properties(${target} PROPERTIES CXX_COMPILER_LAUNCHER "${ORVENDAL_HEADERS_LAUNCHER}")
  endif()
endfunction()

# What every target of ours is built with; outside libraries keep their own flags.
add_library(orvendal_options INTERFACE)
target_include_directories(orvendal_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(orvendal_options INTERFACE -Wall -Wextra -Wpedantic)
if(ORVENDAL_WARNINGS_AS_ERRORS)
  target_compile_options(orvendal_options INTERFACE -Werror)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 sees overlapping copies in plain concatenations of strings at -O3.
  target_compile_options(orvendal_options INTERFACE -Wno-restrict)
  if(CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # Checked copies it takes for too long there, too.
    target_compile_options(orvendal_options INTERFACE -Wno-array-bounds -Wno-stringop-overflow)
  endif()
endif()
if(ORVENDAL_SANITIZE)
  target_compile_options(orvendal_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                                                    -fno-omit-frame-pointer)
  target_link_options(orvendal_options INTERFACE -fsanitize=address,undefined)
endif()
if(ORVENDAL_FUZZ)
  target_compile_options(orvendal_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# What makes it hard to turn a slip into a way in; scripts/check_hardening reads it out of the program.
if(NOT WIN32)
  target_compile_options(orvendal_options INTERFACE -fstack-protector-strong)
  target_link_options(orvendal_options INTERFACE -Wl,-z,relro -Wl,-z,now)
  # Only where the compiler optimises; what is not to be optimised takes it back.
  string(APPEND CMAKE_CXX_FLAGS_RELEASE " -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2")
endif()
