# SQLite for Windows, as SQLite::SQLite3: the amalgamation that a package of the npm registry carries, one pinned
# version, fetched by npm at the first configuration and kept in the build folder.
set(ORVENDAL_SQLITE_PACKAGE better-sqlite3)
set(ORVENDAL_SQLITE_PACKAGE_VERSION 12.4.1)
set(ORVENDAL_SQLITE_PACKAGE_SHA256 14398acbf00d1e8fe0a2753df7d4f15c13138e4b874f4e6e96791f65b4536d0d)

set(sqlite_folder ${PROJECT_BINARY_DIR}/sqlite_package)
set(sqlite_archive
  ${sqlite_folder}/${ORVENDAL_SQLITE_PACKAGE}-${ORVENDAL_SQLITE_PACKAGE_VERSION}.tgz)
set(sqlite_source ${sqlite_folder}/package/deps/sqlite3)

if(NOT EXISTS ${sqlite_archive})
  find_program(NPM_PROGRAM npm REQUIRED)
  file(MAKE_DIRECTORY ${sqlite_folder})
  execute_process(
    COMMAND ${NPM_PROGRAM} pack --silent ${ORVENDAL_SQLITE_PACKAGE}@${ORVENDAL_SQLITE_PACKAGE_VERSION}
    WORKING_DIRECTORY ${sqlite_folder}
    OUTPUT_QUIET
    ERROR_VARIABLE npm_error
    RESULT_VARIABLE npm_result)
  if(NOT npm_result EQUAL 0)
    message(FATAL_ERROR "npm could not fetch the sources of SQLite: ${npm_error}")
  endif()
endif()
file(SHA256 ${sqlite_archive} sqlite_sum)
if(NOT sqlite_sum STREQUAL ORVENDAL_SQLITE_PACKAGE_SHA256)
  file(REMOVE ${sqlite_archive})
  message(FATAL_ERROR "The sources of SQLite that came are not the ones that are pinned")
endif()
if(NOT EXISTS ${sqlite_source}/sqlite3.c)
  file(ARCHIVE_EXTRACT INPUT ${sqlite_archive} DESTINATION ${sqlite_folder}
    PATTERNS package/deps/sqlite3/* package/LICENSE)
endif()

add_library(orvendal_sqlite3 STATIC EXCLUDE_FROM_ALL ${sqlite_source}/sqlite3.c)
target_include_directories(orvendal_sqlite3 SYSTEM PUBLIC ${sqlite_source})
target_compile_definitions(orvendal_sqlite3 PRIVATE
  SQLITE_OMIT_LOAD_EXTENSION SQLITE_THREADSAFE=1 SQLITE_DQS=0)
# Whatever the build type, an unoptimised store makes the tests several times slower.
target_compile_options(orvendal_sqlite3 PRIVATE -O2 -w)
add_library(SQLite::SQLite3 ALIAS orvendal_sqlite3)
