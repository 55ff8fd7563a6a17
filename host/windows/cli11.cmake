# CLI11 is headers alone, the same for every system; they are seen through a link, so that nothing else of the
# building system's own headers is.
find_path(CLI11_HEADERS CLI/CLI.hpp PATHS /usr/include /usr/local/include
  NO_CMAKE_FIND_ROOT_PATH NO_DEFAULT_PATH REQUIRED)
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/cli11)
file(CREATE_LINK ${CLI11_HEADERS}/CLI ${PROJECT_BINARY_DIR}/cli11/CLI SYMBOLIC)
add_library(CLI11::CLI11 INTERFACE IMPORTED)
target_include_directories(CLI11::CLI11 INTERFACE ${PROJECT_BINARY_DIR}/cli11)
