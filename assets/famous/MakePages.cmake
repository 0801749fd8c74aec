# SPDX-FileCopyrightText: 2026 The Quillmark authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Writes the pages of famous birthdays, jan.html to dec.html, into FOLDER.

set(names January February March April May June July August September October November December)
set(lengths 31 29 31 30 31 30 31 31 30 31 30 31)

# two_digits(RESULT NUMBER)
function(two_digits result number)
  if(number LESS 10)
    set(number "0${number}")
  endif()
  set(${result} "${number}" PARENT_SCOPE)
endfunction()

# short_name(RESULT MONTH): "Mar" for "March".
function(short_name result month)
  string(SUBSTRING "${month}" 0 3 short)
  set(${result} "${short}" PARENT_SCOPE)
endfunction()

# month_strip(RESULT MONTH): links to the twelve pages, of which MONTH is the current one.
function(month_strip result month)
  set(strip "")
  foreach(other ${names})
    short_name(short ${other})
    string(TOLOWER "${short}" page)
    set(current "")
    if(other STREQUAL month)
      set(current " aria-current=\"page\"")
    endif()
    string(APPEND strip "<a href=\"${page}.html\" aria-label=\"${other}\"${current}>${short}</a>\n")
  endforeach()
  set(${result} "${strip}" PARENT_SCOPE)
endfunction()

# month_days(RESULT MONTH LENGTH): a section for each day, with its anchor and its link.
function(month_days result month length)
  set(days "")
  foreach(day RANGE 1 ${length})
    two_digits(anchor ${day})
    string(APPEND days
      "<section id=\"${anchor}\">\n"
      "<div class=\"head\"><h2><button type=\"button\" aria-expanded=\"false\" aria-controls=\"list-${anchor}\">"
      "${month} ${day}</button></h2>"
      "<a class=\"source\" href=\"https://en.wikipedia.org/wiki/${month}_${day}#Births\""
      " aria-label=\"Births on ${month} ${day} in Wikipedia\">in Wikipedia</a></div>\n"
      "<div class=\"list\" id=\"list-${anchor}\" hidden></div>\n"
      "</section>\n")
  endforeach()
  set(${result} "${days}" PARENT_SCOPE)
endfunction()

# read_inlined(RESULT FILE): the text without the comment it starts with, as the page has its own.
function(read_inlined result file)
  file(READ "${CMAKE_CURRENT_LIST_DIR}/${file}" text)
  string(FIND "${text}" "*/\n" end)
  math(EXPR start "${end} + 3")
  string(SUBSTRING "${text}" ${start} -1 text)
  string(STRIP "${text}" text)
  set(${result} "${text}\n" PARENT_SCOPE)
endfunction()

read_inlined(css page.css)
read_inlined(script page.js)
# Marks the page's own script and style: no other may run, whatever is fetched.
string(SHA256 nonce "${css}${script}")

foreach(month_name length IN ZIP_LISTS names lengths)
  list(FIND names ${month_name} index)
  math(EXPR index "${index} + 1")
  two_digits(month_number ${index})
  month_strip(months ${month_name})
  month_days(days ${month_name} ${length})
  short_name(page ${month_name})
  string(TOLOWER "${page}" page)
  configure_file("${CMAKE_CURRENT_LIST_DIR}/page.html.in" "${FOLDER}/${page}.html" @ONLY)
  file(TOUCH_NOCREATE "${FOLDER}/${page}.html")
endforeach()
