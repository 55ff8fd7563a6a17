# SQLite for Windows, as SQLite::SQLite3: the version that the native program is linked with, out of the distribution's
# source package. Where that cannot be had, ORVENDAL_SQLITE_FOLDER names a folder with sqlite3.c and sqlite3.h.
set(ORVENDAL_SQLITE_FOLDER "" CACHE PATH "Folder of SQLite's amalgamation; made by scripts/sqlite_sources if empty")

set(sqlite_source ${ORVENDAL_SQLITE_FOLDER})
if(NOT sqlite_source)
  execute_process(
    COMMAND ${PROJECT_SOURCE_DIR}/scripts/sqlite_sources
    OUTPUT_VARIABLE sqlite_source
    OUTPUT_STRIP_TRAILING_WHITESPACE
    ERROR_VARIABLE sqlite_error
    RESULT_VARIABLE sqlite_result)
  if(NOT sqlite_result EQUAL 0)
    message(FATAL_ERROR "The sources of SQLite could not be made: ${sqlite_error}")
  endif()
endif()

# A copy in the build folder, since each source is named by its place there.
set(sqlite_folder ${PROJECT_BINARY_DIR}/sqlite)
foreach(file IN ITEMS sqlite3.c sqlite3.h)
  configure_file(${sqlite_source}/${file} ${sqlite_folder}/${file} COPYONLY)
endforeach()

add_library(orvendal_sqlite3 STATIC EXCLUDE_FROM_ALL ${sqlite_folder}/sqlite3.c)
target_include_directories(orvendal_sqlite3 SYSTEM PUBLIC ${sqlite_folder})
target_compile_definitions(orvendal_sqlite3 PRIVATE
  SQLITE_OMIT_LOAD_EXTENSION SQLITE_THREADSAFE=1 SQLITE_DQS=0)
# Whatever the build type, an unoptimised store makes the tests several times slower.
target_compile_options(orvendal_sqlite3 PRIVATE -O2 -w -fstack-protector-strong)
add_library(SQLite::SQLite3 ALIAS orvendal_sqlite3)
