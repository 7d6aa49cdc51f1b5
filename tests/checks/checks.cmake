# What the built libraries hold, looked at from outside. Sanitizers add symbols of their own.
if(NOT SEQUENCE_INDEX_SANITIZE)
  add_test(NAME Checks.TheModuleExportsItsEntryAloneAndNeedsNothingUnknown
           COMMAND sh ${CMAKE_CURRENT_LIST_DIR}/module_symbols.sh
                   $<TARGET_FILE:SequenceIndex> $<TARGET_FILE:sequence_index_host>)
  add_test(NAME Checks.OnlyTheMediaLibraryNeedsLibAV
           COMMAND sh ${CMAKE_CURRENT_LIST_DIR}/library_on_demand.sh
                   ReadSequenceIndexMedia "libav(format|codec|util)" $<TARGET_FILE:sequence_index_media>
                   $<TARGET_FILE:sequence-index> $<TARGET_FILE:sequence_index_host>
                   $<TARGET_FILE:sequence-index-media>)
  add_test(NAME Checks.OnlyTheArchiveLibraryNeedsLibZip
           COMMAND sh ${CMAKE_CURRENT_LIST_DIR}/library_on_demand.sh
                   OpenSequenceIndexArchive "lib(zip|crypto)" $<TARGET_FILE:sequence_index_archive>
                   $<TARGET_FILE:sequence-index> $<TARGET_FILE:sequence_index_host>)
  add_test(NAME Checks.OnlyTheFontLibraryNeedsFontconfig
           COMMAND sh ${CMAKE_CURRENT_LIST_DIR}/library_on_demand.sh
                   ListSequenceIndexFonts "lib(fontconfig|freetype)" $<TARGET_FILE:sequence_index_fonts>
                   $<TARGET_FILE:sequence-index> $<TARGET_FILE:sequence_index_host>)
  set(checks Checks.TheModuleExportsItsEntryAloneAndNeedsNothingUnknown
             Checks.OnlyTheMediaLibraryNeedsLibAV Checks.OnlyTheArchiveLibraryNeedsLibZip
             Checks.OnlyTheFontLibraryNeedsFontconfig)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_test(NAME Checks.TheHostDefinesEveryOperationThatItDeclares
             COMMAND sh ${CMAKE_CURRENT_LIST_DIR}/declared_operations.sh
                     ${CMAKE_CXX_COMPILER} ${PROJECT_SOURCE_DIR} $<TARGET_FILE:sequence_index_host>)
    list(APPEND checks Checks.TheHostDefinesEveryOperationThatItDeclares)
  endif()
  set_tests_properties(${checks} PROPERTIES LABELS unit TIMEOUT 120)
endif()

find_program(SEQUENCE_INDEX_PYTHON python3 REQUIRED)

add_test(NAME Checks.TheBenchmarkReportWorksOutWhatIsMeasured
         COMMAND ${SEQUENCE_INDEX_PYTHON} ${CMAKE_CURRENT_LIST_DIR}/bench_report.py)
set_tests_properties(Checks.TheBenchmarkReportWorksOutWhatIsMeasured PROPERTIES LABELS unit TIMEOUT 120)

# The desktop program on a display of its own. Pictures of the screen are kept for people.
add_test(NAME Window.ARunFromTheFirstClickToTheExportedFile
         COMMAND ${SEQUENCE_INDEX_PYTHON} ${CMAKE_CURRENT_LIST_DIR}/window_run.py
                 $<TARGET_FILE:sequence-index> ${PROJECT_SOURCE_DIR}/samples/demo.otio
                 ${CMAKE_BINARY_DIR}/screenshots)
add_test(NAME Window.EndedAtAnyMomentItLeavesNoHalfWrittenFile
         COMMAND ${SEQUENCE_INDEX_PYTHON} ${CMAKE_CURRENT_LIST_DIR}/window_kills.py
                 $<TARGET_FILE:sequence-index>)
set_tests_properties(Window.ARunFromTheFirstClickToTheExportedFile
                     Window.EndedAtAnyMomentItLeavesNoHalfWrittenFile
                     PROPERTIES LABELS window TIMEOUT 120)
