if(SVGFIGURER_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
  add_link_options(-fsanitize=address,undefined)
endif()

# Coverage feedback must reach the libraries, not only the fuzz entry points.
if(SVGFIGURER_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()
