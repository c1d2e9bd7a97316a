# Coverage by source, counted by clang. Everything is compiled for it, the tests too: of an inline function the linker
# keeps one copy, which must be one that counts. What is reported is src/ alone.

option(QORL_COVERAGE "Count what runs (clang only)" OFF)

if(QORL_COVERAGE)
  add_compile_options(-fcoverage-mapping -fprofile-instr-generate)
  add_link_options(-fprofile-instr-generate)
endif()
