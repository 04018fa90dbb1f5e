# quorvel_layer(NAME DEPENDS ... SOURCES ...): a folder of src/ as a library of its own, which can
# link what it names and nothing else.
function(quorvel_layer name)
  cmake_parse_arguments(PARSE_ARGV 1 layer "" "" "DEPENDS;SOURCES")
  add_library(${name} STATIC ${layer_SOURCES})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${layer_DEPENDS} PRIVATE quorvel_warnings)
endfunction()
