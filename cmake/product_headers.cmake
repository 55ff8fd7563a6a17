# The headers of the standard library that most of the product includes are read once for all of it. Each file still
# includes what it uses: the preset of the sanitizers builds without this.
add_library(orvendal_product_headers STATIC ${PROJECT_SOURCE_DIR}/cmake/product_headers.cpp)
orvendal_keep_precompiled_headers_true(orvendal_product_headers)
target_link_libraries(orvendal_product_headers PRIVATE orvendal_options)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # ccache wants to know of precompiled headers.
  target_compile_options(orvendal_product_headers PRIVATE -fpch-preprocess)
endif()
target_precompile_headers(orvendal_product_headers PRIVATE <algorithm> <array> <charconv> <cmath> <cstdint> <functional>
  <map> <memory> <optional> <string> <string_view> <utility> <variant> <vector>)

foreach(target IN ITEMS orvendal_base orvendal_data orvendal_forms orvendal_sqlite orvendal_headless orvendal_session
    orvendal_statements orvendal_screen orvendal_form orvendal_component orvendal_words orvendal_host_store
    orvendal_host_text orvendal_stand_in orvendal_sample orvendal_command_line orvendal_ending orvendal_default_store
    orvendal_scripted_library orvendal_script)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(${target} PRIVATE -fpch-preprocess)
  endif()
  target_precompile_headers(${target} REUSE_FROM orvendal_product_headers)
endforeach()

# Those of Qt as well, for its window and the program.
if(TARGET orvendal)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(orvendal_qt PRIVATE -fpch-preprocess)
    target_compile_options(orvendal PRIVATE -fpch-preprocess)
  endif()
  orvendal_keep_precompiled_headers_true(orvendal_qt)
  target_precompile_headers(orvendal_qt PRIVATE <QApplication> <QFontDatabase> <QKeyEvent> <QPainter> <QScreen>
    <QString> <QWidget> <QWindow>)
  target_precompile_headers(orvendal REUSE_FROM orvendal_qt)
endif()
