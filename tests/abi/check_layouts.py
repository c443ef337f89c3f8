#!/usr/bin/env python3
"""Compares the tables of virtual operations, and the orders of members, that a compiler prints for
layouts.cpp with the ones that plug-ins in the field were built against.

Usage: check_layouts.py microsoft|itanium DUMP
"""

import re
import sys

# Row number: operation. Row 1 of each is the destructor; a row that is not named is ReservedN.
NAMED_ELEMENT = {4: "AddQualifier", 6: "GetQualifier", 7: "EnumerateQualifiers"}
TABLES = {
    "ICIMElement": (1, {}),
    "ICIMNamedElement": (7, NAMED_ELEMENT),
    "ICIMNamespace": (13, {5: "CreateClass", 6: "GetClass", 7: "EnumerateClasses",
                           9: "CreateQualifierDecl", 10: "GetQualifierDecl",
                           11: "EnumerateQualifierDecls", 13: "GetInstance"}),
    "ICIMClass": (36, {3: "Commit", 6: "GetName", 7: "GetNamespace", 8: "IsAssociation",
                       9: "IsAbstract", 10: "IsRootClass", 11: "GetSuperClass",
                       12: "EnumerateSubClasses", 17: "AddPropertyDecl", 18: "GetPropertyDecl",
                       19: "EnumeratePropertyDecls", 21: "SetStaticProperty",
                       22: "EnumerateStaticProperties", 23: "CreateInstance",
                       24: "EnumerateInstances", 25: "AddMethodDecl", 27: "EnumerateMethodDecls",
                       36: "AddInstance"}),
    "ICIMPropertyDecl": (15, {**NAMED_ELEMENT, 9: "Commit", 11: "GetName", 13: "GetType",
                              15: "GetDefaultValue"}),
    "ICIMParameterDecl": (12, {**NAMED_ELEMENT, 9: "Commit", 10: "GetName", 12: "GetType"}),
    "ICIMMethodDecl": (15, {**NAMED_ELEMENT, 10: "GetName", 12: "GetType", 13: "AddParameterDecl",
                            15: "EnumerateParameterDecls"}),
    "ICIMInstance": (13, {8: "GetClass", 11: "GetProperty", 12: "SetProperty",
                          13: "EnumerateProperties"}),
    "ICIMProperty": (16, {5: "GetValue", 8: "GetPropertyDecl", 16: "ToString"}),
    "ICIMQualifier": (10, {3: "Commit", 9: "GetQualifierDecl", 10: "GetValue"}),
    "ICIMQualifierDecl": (14, {3: "Commit", 5: "GetName", 9: "GetValue", 11: "GetFirstAttribute",
                               14: "GetSecondAttribute"}),
    "ILogger": (8, {2: "LogMessage", 3: "LogSystemEvent", 4: "GetLogEntries", 5: "ClearLogEntries",
                    6: "SetLogThreshold", 7: "GetLogThreshold", 8: "SetLogFilename"}),
    "INamespaceProvider": (2, {2: "GetName"}),
    "INamespaceSource": (3, {2: "GetName", 3: "GetNamespace"}),
    "INamespaceConsumer": (4, {2: "GetName", 3: "GetDescription", 4: "Consume"}),
    "INamespaceProviderManager": (4, {2: "RegisterNamespaceProvider", 3: "GetNamespaceProvider",
                                      4: "EnumerateNamespaceProviders"}),
    "TCIMValueImpl": (20, {2: "operator bool", 3: "operator unsigned char",
                           4: "operator signed char", 5: "operator unsigned short",
                           6: "operator short", 7: "operator unsigned int", 8: "operator int",
                           9: "operator unsigned long long", 10: "operator long long",
                           11: "operator float", 12: "operator double", 13: "operator string",
                           14: "operator TCIMChar16", 15: "operator TCIMDateTime",
                           16: "operator TCIMReference", 17: "operator vector", 18: "ToString",
                           19: "operator==", 20: "operator<"}),
    "TQDAException": (2, {2: "what"}),
    "TBoostAssertException": (2, {2: "what"}),
}

# The members of each record in order, by name.
RECORDS = {
    "TQDAStatusCode": ["fCode"],
    "TCIMValue": ["fType", "fBody", "fReferencedClass", "fMaxArraySize"],
    "TCIMDateTimeImpl": ["fIsNull", "fYear", "fMonth", "fDay", "fHour", "fMinute", "fSecond",
                         "fMicroSeconds", "fUTCOffset", "fIsInterval", "fPrecision"],
    "TCIMDateTime": ["fBody"],
    "TCIMChar16Impl": ["fIsNull", "fValue"],
    "TCIMReference": ["fBody"],
    "TCIMReferenceImpl": ["fOwner", "fNamespace", "fContext", "fClass", "fKeyBindings", "fElement",
                          "fNamespaceName"],
    "TCIMNumericValueImpl": ["fType", "fValue"],
    "TCIMStringValueImpl": ["fValue"],
    "TCIMChar16ValueImpl": ["fValue"],
    "TCIMDateTimeValueImpl": ["fValue"],
    "TCIMReferenceValueImpl": ["fValue"],
    "TCIMArrayValueImpl": ["fValue"],
    "TCIMChar16": ["fBody"],
    "TCIMValue::TCIMType": ["fType"],
    "IIPMILan": ["fSessionID", "fIPAddress", "fUserID", "fPassword", "fLanStatus", "fSeqNum",
                 "fSocket", "fSaServer"],
    "TLogger": ["fLogThreshold", "fLogEntries", "fLogFilename", "fLogFile"],
    "TLogEntry": ["severity", "message", "time"],
    "TNamespaceProviderManager": ["fProviders"],
}

NS = "NZRVQDA20::"


def operation(entry):
    """The bare name of the operation in one printed entry."""
    text = re.sub(r"\[[^\]]*\]", "", entry).strip()
    if "~" in text:
        return "~"
    found = re.search(r"::(operator[^(]*?)\s*\(\)|::(operator(?:==|<))\(|::(\w+)\(", text)
    name = next(group for group in found.groups() if group)
    if name.startswith("operator "):
        name = re.sub(r"NZRVQDA20::|std::|__cxx11::|__1::", "", name)
        name = re.sub(r"basic_string.*", "string", name)
        name = re.sub(r"vector<.*", "vector", name)
    return name.replace("unsigned __int64", "unsigned long long").strip()


def microsoft_tables(dump):
    """{class: [operations from row 1 on]}; the first table of the class itself."""
    tables = {}
    for head in re.finditer(r"^VFTable for (.*) \(\d+ entr.*\n((?:.+\n)*)", dump, re.M):
        block = head.group(2)
        owners = re.findall(r"'([^']+)'", head.group(1))
        # The second table of ICIMClass is looked at under a name of its own.
        name = owners[-1].replace(NS, "")
        if name.endswith("ICIMClass") and owners[0] == NS + "ICIMNamedElement":
            name += " as ICIMNamedElement"
        entries = re.findall(r"^\s*\d+ \| (.*)$", block, re.M)
        tables.setdefault(name, [operation(e) for e in entries[1:]])
    return tables


def itanium_tables(dump):
    tables = {}
    for head in re.finditer(r"^Vtable for '([^']+)' \(\d+ entr.*\n((?:.+\n)*)", dump, re.M):
        block = head.group(2)
        name = head.group(1).replace(NS, "")
        part, parts = None, []
        for entry in re.findall(r"^\s*\d+ \| (.*)$", block, re.M):
            if entry.startswith("offset_to_top"):
                part = []
                parts.append(part)
            elif not entry.endswith(" RTTI"):
                part.append(operation(entry))
        # The destructor has two entries in this ABI; the rows count it once.
        rows = [p[1:] if p[:2] == ["~", "~"] else p for p in parts]
        tables[name] = rows[0]
        if name.endswith("ICIMClass") and len(rows) > 1:
            tables[name + " as ICIMNamedElement"] = rows[1]
    return tables


def expected_rows(name, count, named):
    reserved = "ReservedElement%d" if name == "ICIMNamedElement" else "Reserved%d"
    rows = ["~"]
    for row in range(2, count + 1):
        inherited = name in ("ICIMPropertyDecl", "ICIMParameterDecl", "ICIMMethodDecl") and row < 8
        rows.append(named.get(row, ("ReservedElement%d" if inherited else reserved) % row))
    return rows


def members(dump, name):
    pattern = r"\n +0 \| (?:class|struct) NZRVQDA20::%s(?: \(empty\))?\n((?: +[\d:-]+ \| .*\n)+)" % name
    found = re.search(pattern, dump)
    if not found:
        return None
    # Direct members stand two blanks in.
    lines = re.findall(r"^ +[\d:-]+ \|   (\S.*)$", found.group(1), re.M)
    return [line.split()[-1] for line in lines if not re.search(r"vtable pointer|vftable pointer|\(base\)|\(primary base\)", line)]


def main():
    abi, path = sys.argv[1:3]
    with open(path, encoding="utf-8") as file:
        dump = file.read()
    tables = microsoft_tables(dump) if abi == "microsoft" else itanium_tables(dump)
    failures = 0

    def compare(what, expected, got):
        nonlocal failures
        if expected != got:
            failures += 1
            print(f"{what}:\n  expected {expected}\n  got      {got}")

    for name, (count, named) in TABLES.items():
        got = tables.get("TableOf" + name) or tables.get(name)
        compare(f"table of {name}", expected_rows(name, count, named), got)
    got = tables.get("TableOfICIMClass as ICIMNamedElement") or tables.get("ICIMClass as ICIMNamedElement")
    compare("second table of ICIMClass", expected_rows("ICIMNamedElement", *TABLES["ICIMNamedElement"]), got)
    for name, expected in RECORDS.items():
        compare(f"members of {name}", expected, members(dump, name))
    total = len(TABLES) + 1 + len(RECORDS)
    print(f"check_layouts ({abi}): {total - failures} of {total} as they must be")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
