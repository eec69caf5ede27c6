# The browser that renders the tool's pictures in tests, and what it means that there is none.
find_program(KESTREL_BROWSER NAMES chromium chromium-browser google-chrome
  DOC "The browser that renders the tool's pictures in tests; OFF for none")
if(KESTREL_BROWSER)
  message(STATUS "Pictures are tested in ${KESTREL_BROWSER}")
elseif(KESTREL_ALL_TESTS)
  message(FATAL_ERROR "no browser to test pictures in: install Debian's package chromium, name one "
    "with -DKESTREL_BROWSER=, or use -DKESTREL_ALL_TESTS=OFF")
else()
  message(STATUS "Pictures aren't tested: no browser (KESTREL_BROWSER is ${KESTREL_BROWSER})")
endif()
