# SPDX-FileCopyrightText: 2026 The Quillmark authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Lays a program's folder: FOLDER from the PROGRAM, what was MADE and the ASSETS. The
# household's own files (database, pictures, texts) are laid only where they are missing;
# a new database is filled with the HOUSEHOLD, if one is given, and its pictures are laid too.

function(lay_if_missing source target)
  if(NOT EXISTS "${FOLDER}/${target}")
    configure_file("${source}" "${FOLDER}/${target}" COPYONLY)
  endif()
endfunction()

foreach(name themes notices famous PeoplePics AnnPics)
  if(NOT EXISTS "${FOLDER}/${name}")
    file(MAKE_DIRECTORY "${FOLDER}/${name}")
  endif()
endforeach()
file(CHMOD "${FOLDER}" PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)

# Renamed into place, as a running program's own file cannot be written.
file(COPY_FILE "${PROGRAM}" "${FOLDER}/quillmark.new")
file(RENAME "${FOLDER}/quillmark.new" "${FOLDER}/quillmark")
foreach(name Help.hlp animp.ico hand.cur notices/hapbirth.wav notices/wmfade2.wav notices/jad0044.wav)
  file(COPY_FILE "${MADE}/${name}" "${FOLDER}/${name}" ONLY_IF_DIFFERENT)
endforeach()
foreach(month jan feb mar apr may jun jul aug sep oct nov dec)
  file(COPY_FILE "${MADE}/famous/${month}.html" "${FOLDER}/famous/${month}.html" ONLY_IF_DIFFERENT)
endforeach()

if(NOT EXISTS "${FOLDER}/quillmark2002.mdb")
  configure_file("${MADE}/quillmark2002.mdb" "${FOLDER}/new.mdb" COPYONLY)
  if(HOUSEHOLD)
    execute_process(COMMAND "${SQLITE3}" -bail "${FOLDER}/new.mdb" INPUT_FILE "${HOUSEHOLD}" COMMAND_ERROR_IS_FATAL ANY)
  endif()
  file(RENAME "${FOLDER}/new.mdb" "${FOLDER}/quillmark2002.mdb")
endif()
file(CHMOD "${FOLDER}/quillmark2002.mdb" PERMISSIONS OWNER_READ OWNER_WRITE)
lay_if_missing("${ASSETS}/months.txt" months.txt)
lay_if_missing("${ASSETS}/reminders.txt" reminders.txt)
file(GLOB pictures RELATIVE "${MADE}" "${MADE}/themes/*.jpg")
foreach(picture ${pictures})
  lay_if_missing("${MADE}/${picture}" "${picture}")
endforeach()
if(HOUSEHOLD)
  file(GLOB pictures RELATIVE "${MADE}/sample" "${MADE}/sample/PeoplePics/*.bmp" "${MADE}/sample/AnnPics/*.bmp")
  foreach(picture ${pictures})
    lay_if_missing("${MADE}/sample/${picture}" "${picture}")
  endforeach()
endif()
