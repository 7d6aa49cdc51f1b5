# One sanitizer a build. -O1 keeps stack traces readable and the undefined-behaviour build affordable.
if(SEQUENCE_INDEX_SANITIZE)
  add_compile_options(-fsanitize=${SEQUENCE_INDEX_SANITIZE} -fno-omit-frame-pointer -O1 -g1)
  add_link_options(-fsanitize=${SEQUENCE_INDEX_SANITIZE})
  if(SEQUENCE_INDEX_SANITIZE STREQUAL "undefined")
    add_compile_options(-fno-sanitize-recover=undefined)
    add_link_options(-fno-sanitize-recover=undefined)
  endif()
endif()
