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
