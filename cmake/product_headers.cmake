# The headers of the standard library that most of the product includes are read once for all of it. Each file still
# includes what it uses: the preset of the sanitizers builds without this.
add_library(orvendal_product_headers STATIC ${PROJECT_SOURCE_DIR}/cmake/product_headers.cpp)
target_link_libraries(orvendal_product_headers PRIVATE orvendal_options)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # ccache wants to know of precompiled headers.
  target_compile_options(orvendal_product_headers PRIVATE -fpch-preprocess)
endif()
target_precompile_headers(orvendal_product_headers PRIVATE <algorithm> <array> <charconv> <cmath> <cstdint> <functional>
  <map> <memory> <optional> <string> <string_view> <utility> <variant> <vector>)

foreach(target IN ITEMS orvendal_base orvendal_data orvendal_forms orvendal_sqlite orvendal_headless orvendal_session
    orvendal_statements orvendal_screen orvendal_form orvendal_component orvendal_sample_schema orvendal_host
    orvendal_guion)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(${target} PRIVATE -fpch-preprocess)
  endif()
  target_precompile_headers(${target} REUSE_FROM orvendal_product_headers)
endforeach()
