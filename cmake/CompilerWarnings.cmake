add_compile_options(-Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align
                    -Wimplicit-fallthrough -Wunused -ffp-contract=off)
if(SEQUENCE_INDEX_WERROR)
  add_compile_options(-Werror)
endif()
