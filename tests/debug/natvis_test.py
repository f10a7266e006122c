# debug/gkcntr.natvis names classes and members that are there. Oracle: what the program's debug information says.
import os
import re
import unittest
import xml.etree.ElementTree

import gdb

import gkcntr_read as read
from asked import ROOT, public_classes

SPACE = "{http://schemas.microsoft.com/vstudio/debugger/natvis/2010}"
WORDS = {"this", "nullptr"}


def instances():
    """Every class of ours in the program's debug information, template instances one by one."""
    listed = gdb.execute("info types ^gk", to_string=True)
    names = re.findall(r"^(?:\d+:)?\s*(gk[^;]+);$", listed, re.M)
    return {name for name in names if "::" not in re.sub("<.*>", "", name)}


def expressions(element):
    """The C++ expressions of a Type: in braces, as text of what expands, as conditions."""
    for part in element.iter():
        if "Condition" in part.attrib:
            yield part.get("Condition")
        if part.tag == SPACE + "DisplayString":
            yield from re.findall(r"{([^}]*)}", part.text)
        elif part.tag in (SPACE + "Item", SPACE + "ExpandedItem"):
            yield part.text


def member_type(of_type, name):
    """The type of a member, one of a base included; None when there is none."""
    of_type = read.plain(of_type)
    if of_type.code != gdb.TYPE_CODE_STRUCT:
        return None
    for field in of_type.fields():
        if field.name == name and not field.is_base_class:
            return field.type
    for field in of_type.fields():
        if field.is_base_class:
            found = member_type(field.type, name)
            if found is not None:
                return found
    return None


def unknown(expression, of_type):
    """The names of an expression that mean nothing in the class."""
    expression = re.sub(r",\w+$", "", expression)  # how to show it
    for cast in re.findall(r"\((\w+)&\)", expression):
        try:
            gdb.lookup_type(cast)
        except gdb.error:
            yield cast
    expression = re.sub(r"\(\w+&\)", "", expression)
    for chain in re.findall(r"[A-Za-z_]\w*(?:(?:\.|->)[A-Za-z_]\w*)*", expression):
        at = of_type
        for name in re.split(r"\.|->", chain):
            if name in WORDS:
                break
            at = member_type(at, name)
            if at is None:
                yield chain
                break
            at = read.plain(at)
            if at.code == gdb.TYPE_CODE_PTR:
                at = at.target()


class Natvis(unittest.TestCase):
    def setUp(self):
        root = xml.etree.ElementTree.parse(os.path.join(ROOT, "debug", "gkcntr.natvis")).getroot()
        self.types = root.findall(SPACE + "Type")
        self.assertTrue(self.types)

    def names(self, element):
        return [element.get("Name")] + [other.get("Name") for other in element.findall(SPACE + "AlternativeType")]

    def test_its_classes_are_there(self):
        there = instances()
        for element in self.types:
            for name in self.names(element):
                self.assertTrue(self.matching(name, there), name)

    def test_its_members_are_there(self):
        there = instances()
        for element in self.types:
            for name in self.names(element):
                for instance in self.matching(name, there):
                    for expression in expressions(element):
                        self.assertEqual([], list(unknown(expression, gdb.lookup_type(instance))),
                                         "%s: %s" % (instance, expression))

    def test_it_has_every_class_that_holds_something(self):
        named = {name.split("<")[0] for element in self.types for name in self.names(element)}
        self.assertEqual(set(), public_classes() - named)

    def matching(self, name, there):
        pattern = re.escape(name).replace(r"\*", ".*")
        return sorted(instance for instance in there if re.fullmatch(pattern, instance))
