# Tests for Windows run under Wine, in one prefix of the build folder that the first of them makes.
set(GOOGLETEST_SOURCE /usr/src/googletest CACHE PATH "Sources of GoogleTest, to be built for Windows")
set(gtest_force_shared_crt ON)
set(INSTALL_GTEST OFF)
set(BUILD_GMOCK OFF)
add_subdirectory(${GOOGLETEST_SOURCE} ${PROJECT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
# Every test is linked with it: the fewer sections it has, the sooner.
target_compile_options(gtest PRIVATE -O2)

set(ORVENDAL_WINE_ENVIRONMENT ORVENDAL_WINEPREFIX=${ORVENDAL_WINEPREFIX})
add_test(NAME wine_prefix COMMAND ${CMAKE_CROSSCOMPILING_EMULATOR} wineboot --init)
set_tests_properties(wine_prefix PROPERTIES
  FIXTURES_SETUP wine_prefix RESOURCE_LOCK wine_display ENVIRONMENT "${ORVENDAL_WINE_ENVIRONMENT}" TIMEOUT 180)

# Windows are tested on a display of their own, in a prefix of their own, since a desktop of Wine that was started
# without a display refuses windows; and one program at a time, since they all want the keyboard.
set(ORVENDAL_ON_DISPLAY ${CMAKE_CURRENT_SOURCE_DIR}/support/on_display.sh)
set(ORVENDAL_DISPLAY_ENVIRONMENT ORVENDAL_WINEPREFIX=${ORVENDAL_WINEPREFIX}_windows)
set(window_emulator ${ORVENDAL_ON_DISPLAY} ${CMAKE_CROSSCOMPILING_EMULATOR})

add_test(NAME wine_windows_prefix COMMAND ${window_emulator} wineboot --init)
# Without a window manager the windows of the system must not wait for one.
add_test(NAME wine_windows_unmanaged COMMAND ${window_emulator}
  reg add "HKCU\\Software\\Wine\\X11 Driver" /v Managed /d N /f)
# Wine 10 would grab the pointer for a window that covers such a display, fail, and try again without an end.
add_test(NAME wine_windows_ungrabbed COMMAND ${window_emulator}
  reg add "HKCU\\Software\\Wine\\X11 Driver" /v GrabPointer /d N /f)
set_tests_properties(wine_windows_prefix wine_windows_unmanaged wine_windows_ungrabbed PROPERTIES
  FIXTURES_SETUP wine_windows RESOURCE_LOCK wine_display ENVIRONMENT "${ORVENDAL_DISPLAY_ENVIRONMENT}" TIMEOUT 180)
set_tests_properties(wine_windows_unmanaged wine_windows_ungrabbed PROPERTIES DEPENDS wine_windows_prefix)

# The test of that program needs a display: orvendal_run_on_display(NAME [ENVIRONMENT...])
function(orvendal_run_on_display name)
  set_target_properties(${name} PROPERTIES
    CROSSCOMPILING_EMULATOR "${ORVENDAL_ON_DISPLAY};${CMAKE_CROSSCOMPILING_EMULATOR}")
  set_tests_properties(${name} PROPERTIES FIXTURES_REQUIRED wine_windows RESOURCE_LOCK wine_display
    ENVIRONMENT "${ORVENDAL_DISPLAY_ENVIRONMENT};${ARGN}")
endfunction()

# Leads the calls of functions of the system through TARGET, in every program that links it; see
# support/wrapped_import.h. A function with arguments of so many bytes: orvendal_wrap_imports(TARGET FUNCTION:BYTES...)
function(orvendal_wrap_imports target)
  foreach(function IN LISTS ARGN)
    string(REPLACE ":" ";" parts ${function})
    list(GET parts 0 name)
    list(GET parts 1 bytes)
    if(CMAKE_SIZEOF_VOID_P EQUAL 8)
      target_link_options(${target} PUBLIC -Wl,--wrap=__imp_${name})
    else()
      target_link_options(${target} PUBLIC -Wl,--wrap=_imp__${name}@${bytes})
    endif()
  endforeach()
endfunction()
