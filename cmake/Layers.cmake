# quorvel_layer(NAME [FINAL] DEPENDS ... SOURCES ...): a folder of src/ as a library of its own, which can
# link what it names and nothing else. The objects of a FINAL one go into the programs that name it, since it
# defines what other layers declare.
function(quorvel_layer name)
  cmake_parse_arguments(PARSE_ARGV 1 layer "FINAL" "" "DEPENDS;SOURCES")
  if(layer_FINAL)
    add_library(${name} OBJECT ${layer_SOURCES})
  else()
    add_library(${name} STATIC ${layer_SOURCES})
  endif()
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${layer_DEPENDS} PRIVATE quorvel_warnings)
endfunction()
