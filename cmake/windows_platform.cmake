# Everything that the build for Windows needs beyond the sources.
enable_language(C RC)
if(CCACHE_PROGRAM AND NOT CMAKE_C_COMPILER_LAUNCHER)
  set(CMAKE_C_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()
# Each test has one prefix of Wine, made by the first one, in the build folder.
set(ORVENDAL_WINEPREFIX ${PROJECT_BINARY_DIR}/wine_prefix)

target_compile_definitions(orvendal_options INTERFACE UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN
  WINVER=0x0601 _WIN32_WINNT=0x0601)
# No folder of the building machine goes into what is handed out.
target_compile_options(orvendal_options INTERFACE -g1 -ffunction-sections -fdata-sections
  -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.)
target_link_options(orvendal_options INTERFACE -Wl,--gc-sections)
# A function whose variables were written over ends the program before it returns to wherever that leads.
target_compile_options(orvendal_options INTERFACE -fstack-protector-strong)
target_link_options(orvendal_options INTERFACE -fstack-protector-strong)

include(cmake/windows_module.cmake)
include(cmake/windows_sqlite.cmake)
