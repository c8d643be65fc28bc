# Where the project is found on the web: every address that the program, its guide and its metadata name. A distributor
# sets other ones when configuring, for example with -DCORVALIS_SITE=https://discs.my-site.org/.
set(CORVALIS_SITE "https://corvalis.org/" CACHE STRING "The project's site, with a slash at its end")
foreach(page "HOME;;the product's home page" "MAKERS;makers/;the makers' home page"
    "SUPPORT;support/ticket/;where support is asked for" "PRIVACY;privacy/;what is done with personal data"
    "GUIDE;guide/;the user guide, for those who have none installed"
    "SCREENSHOTS;screenshots/;the folder of the screenshots in software centres")
  list(GET page 0 name)
  list(GET page 1 place)
  list(GET page 2 purpose)
  set(CORVALIS_${name}_PAGE "${CORVALIS_SITE}${place}" CACHE STRING "Address: ${purpose}")
endforeach()
