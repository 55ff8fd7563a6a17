# What every DLL and EXE for Windows has in common: the runtime inside, its symbols in a file of their own.

# Splits the symbols of `target` off to <file>.debug beside it, where gdb finds them. The tools note the moment in
# what they write, as the linker is told not to; here they are told another one.
function(orvendal_split_symbols target)
  set(at_no_moment ${CMAKE_COMMAND} -E env SOURCE_DATE_EPOCH=0)
  add_custom_command(TARGET ${target} POST_BUILD
    COMMAND ${at_no_moment} ${CMAKE_OBJCOPY} --only-keep-debug $<TARGET_FILE:${target}> $<TARGET_FILE:${target}>.debug
    COMMAND ${at_no_moment} ${CMAKE_STRIP} --strip-all $<TARGET_FILE:${target}>
    COMMAND ${at_no_moment} ${CMAKE_OBJCOPY} --add-gnu-debuglink=$<TARGET_FILE:${target}>.debug $<TARGET_FILE:${target}>
    COMMENT "Splitting the symbols of ${target} off")
endfunction()

# A COM DLL <target>.dll: exports by `definitions` (.def, full path) and no other.
function(orvendal_add_com_dll target definitions)
  add_library(${target} MODULE ${definitions} ${ARGN})
  set_target_properties(${target} PROPERTIES PREFIX "" SUFFIX ".dll" LINK_DEPENDS ${definitions})
  if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    target_link_options(${target} PRIVATE -Wl,--enable-stdcall-fixup)
  endif()
  target_link_libraries(${target} PRIVATE orvendal_module_entry)
  orvendal_split_symbols(${target})
endfunction()

# Type libraries are compiled with widl; stdole2 and the idl files of the system come from Wine's packages.
find_program(WIDL_PROGRAM ${ORVENDAL_MINGW_PREFIX}-widl REQUIRED)
find_program(PERL_PROGRAM perl REQUIRED)
find_path(WINE_IDL_FOLDER oaidl.idl
  PATHS /usr/include/wine/wine/windows /usr/include/wine/windows
  NO_CMAKE_FIND_ROOT_PATH NO_DEFAULT_PATH REQUIRED)
find_path(WINE_STDOLE_FOLDER stdole2.tlb
  PATHS /usr/lib/x86_64-linux-gnu/wine/x86_64-windows /usr/lib/wine/x86_64-windows /usr/lib64/wine/x86_64-windows
  NO_CMAKE_FIND_ROOT_PATH NO_DEFAULT_PATH REQUIRED)

# Compiles <idl> to <name>.tlb and <name>.h in the target's build folder; target <name>_idl carries the folder of
# both as include directory. Further arguments are type libraries' targets that it imports.
function(orvendal_add_type_library idl)
  cmake_path(GET idl STEM name)
  set(out ${CMAKE_CURRENT_BINARY_DIR}/idl)
  file(MAKE_DIRECTORY ${out})
  if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    set(bits --win64)
  else()
    set(bits --win32)
  endif()
  set(flags ${bits} -I${WINE_IDL_FOLDER} -L${WINE_STDOLE_FOLDER})
  set(needs)
  foreach(imported IN LISTS ARGN)
    list(APPEND flags -L$<TARGET_PROPERTY:${imported},ORVENDAL_TYPE_LIBRARY_FOLDER>
      -I$<TARGET_PROPERTY:${imported},ORVENDAL_TYPE_LIBRARY_SOURCES>)
    list(APPEND needs $<TARGET_PROPERTY:${imported},ORVENDAL_TYPE_LIBRARY_FILE>)
  endforeach()
  add_custom_command(
    OUTPUT ${out}/${name}.tlb ${out}/${name}.h
    COMMAND ${WIDL_PROGRAM} ${flags} -t -o ${out}/${name}.tlb ${CMAKE_CURRENT_SOURCE_DIR}/${idl}
    COMMAND ${PERL_PROGRAM} ${PROJECT_SOURCE_DIR}/cmake/steady_type_library.pl ${out}/${name}.tlb
    COMMAND ${WIDL_PROGRAM} ${flags} -h -o ${out}/${name}.h ${CMAKE_CURRENT_SOURCE_DIR}/${idl}
    DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${idl} ${PROJECT_SOURCE_DIR}/cmake/steady_type_library.pl ${needs}
    VERBATIM)
  add_custom_target(${name}_idl_files DEPENDS ${out}/${name}.tlb ${out}/${name}.h)
  add_library(${name}_idl INTERFACE)
  add_dependencies(${name}_idl ${name}_idl_files)
  target_include_directories(${name}_idl SYSTEM INTERFACE ${out})
  set_target_properties(${name}_idl PROPERTIES
    ORVENDAL_TYPE_LIBRARY_SOURCES ${CMAKE_CURRENT_SOURCE_DIR}
    ORVENDAL_TYPE_LIBRARY_FOLDER ${out}
    ORVENDAL_TYPE_LIBRARY_FILE ${out}/${name}.tlb)
endfunction()
