# SPDX-FileCopyrightText: 2026 The Quillmark authors
# SPDX-License-Identifier: GPL-3.0-or-later

"""Prints, as JSON, the text documents that a running LibreOffice has open.

    open_documents.py PIPE [end]     with "end", has it quit without saving anything
"""
import json
import sys

import uno


def desktop(pipe):
    local = uno.getComponentContext()
    resolver = local.ServiceManager.createInstanceWithContext("com.sun.star.bridge.UnoUrlResolver", local)
    remote = resolver.resolve(f"uno:pipe,name={pipe};urp;StarOffice.ComponentContext")
    return remote.ServiceManager.createInstanceWithContext("com.sun.star.frame.Desktop", remote)


def documents(office):
    components = office.Components.createEnumeration()
    while components.hasMoreElements():
        component = components.nextElement()
        if component.supportsService("com.sun.star.text.TextDocument"):
            yield component


def main():
    office = desktop(sys.argv[1])
    found = list(documents(office))
    print(json.dumps([{"location": document.URL,
                       "isNamed": document.hasLocation(),
                       "isModified": document.isModified(),
                       "isReadOnly": document.isReadonly(),
                       "title": document.Title,
                       "text": document.Text.String} for document in found]))
    if sys.argv[2:] == ["end"]:
        for document in found:
            document.setModified(False)
        office.terminate()


main()
