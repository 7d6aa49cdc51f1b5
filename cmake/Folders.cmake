# Every folder is a target that sees only what it links. A folder's headers are included by the folder's
# name ("table/RowOrder.h"), through a link made for that folder alone: a header of a folder that is not
# linked is not found, so a wrong arrow does not compile.

# sequence_index_expose(<target> <scope> <name>): the current folder can be included as <name>/ by <target>
# and by whatever links it.
function(sequence_index_expose target scope name)
  set(root ${CMAKE_BINARY_DIR}/include/${target})
  get_filename_component(parent ${root}/${name} DIRECTORY)
  file(MAKE_DIRECTORY ${parent})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${root}/${name} SYMBOLIC)
  target_include_directories(${target} ${scope} ${root})
endfunction()

# sequence_index_folder(<target> <name> LINKS <targets>...): an object library of the current folder's
# sources.
function(sequence_index_folder target name)
  cmake_parse_arguments(FOLDER "" "" "LINKS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  add_library(${target} OBJECT ${sources})
  sequence_index_expose(${target} PUBLIC ${name})
  target_link_libraries(${target} PUBLIC ${FOLDER_LINKS})
endfunction()

# sequence_index_loaded_library(<name> <folder> LINKS <targets>...): a shared library of a folder's
# sources, which the host loads when it is needed. It shows what exports.map beside it names, no more.
function(sequence_index_loaded_library name folder)
  cmake_parse_arguments(LIBRARY "" "" "LINKS" ${ARGN})
  add_library(${name} SHARED $<TARGET_OBJECTS:${folder}>)
  target_link_libraries(${name} PRIVATE ${LIBRARY_LINKS})
  target_link_options(${name} PRIVATE -Wl,--version-script=${CMAKE_CURRENT_SOURCE_DIR}/exports.map)
  set_property(TARGET ${name} APPEND PROPERTY LINK_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/exports.map)
  if(NOT SEQUENCE_INDEX_SANITIZE)
    target_link_options(${name} PRIVATE -Wl,-z,defs)
  endif()
endfunction()
