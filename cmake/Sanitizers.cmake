if(SVGFIGURER_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
  add_link_options(-fsanitize=address,undefined)
endif()

# ThreadSanitizer cannot share a build with AddressSanitizer, so it has a build of its own.
if(SVGFIGURER_TSAN)
  if(SVGFIGURER_SANITIZE)
    message(FATAL_ERROR "SVGFIGURER_TSAN and SVGFIGURER_SANITIZE cannot be combined")
  endif()
  add_compile_options(-fsanitize=thread -fno-omit-frame-pointer)
  add_link_options(-fsanitize=thread)
endif()

# Coverage feedback must reach the libraries, not only the fuzz entry points.
if(SVGFIGURER_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()
