add_compile_options(-Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align
                    -Wimplicit-fallthrough -Wunused -ffp-contract=off)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # g++ 12 sees overlapping copies inside std::string where there are none (its bug 105651).
  add_compile_options(-Wno-restrict)
endif()
if(SEQUENCE_INDEX_WERROR)
  add_compile_options(-Werror)
endif()
