# The tables of the sample store, the watched recordsets and the form of what is printed, apart from the program so
# that tests can use them.
add_library(orvendal_sample_schema STATIC
  ${CMAKE_CURRENT_LIST_DIR}/observed_store.cpp
  ${CMAKE_CURRENT_LIST_DIR}/printed_text.cpp
  ${CMAKE_CURRENT_LIST_DIR}/sample_schema.cpp)
target_link_libraries(orvendal_sample_schema PUBLIC orvendal_sqlite)
