"""Pieces of objects, read with the doubt that a debugger owes them: they may not have been made yet."""
import struct

import gdb


class NotReadable(Exception):
    """What is there cannot be an object of this class."""


# What reading an object that is none may raise.
ERRORS = (NotReadable, gdb.error, RuntimeError, ValueError, OverflowError, KeyError, TypeError)


def plain(gdb_type):
    """The type without const and without the names it is also known by."""
    return gdb_type.strip_typedefs().unqualified()


def name_of(value):
    return plain(value.type).name or ""


def base(value, name):
    """The base object of class `name`, the value itself included; None when there is none."""
    value_type = plain(value.type)
    if value_type.name == name:
        return value
    if value_type.code != gdb.TYPE_CODE_STRUCT:
        return None
    for field in value_type.fields():
        if field.is_base_class:
            found = base(value.cast(field.type), name)
            if found is not None:
                return found
    return None


def base_starting(value, beginning):
    """The base object of a class template's instance; None when there is none."""
    value_type = plain(value.type)
    if (value_type.name or "").startswith(beginning):
        return value
    if value_type.code != gdb.TYPE_CODE_STRUCT:
        return None
    for field in value_type.fields():
        if field.is_base_class:
            found = base_starting(value.cast(field.type), beginning)
            if found is not None:
                return found
    return None


def flag(value):
    """A bool, which has two values only when it has been set."""
    number = int(value.cast(gdb.lookup_type("unsigned char")))
    if number > 1:
        raise NotReadable
    return number == 1


def has(value, member):
    return any(field.name == member for field in plain(value.type).fields())


def vector(value):
    """Begin and length of a std::vector, of either standard library, whose elements are there."""
    if has(value, "__begin_"):
        begin, end = value["__begin_"], value["__end_"]
        limit = value["__end_cap_"]["__value_"]
    else:
        inner = value["_M_impl"]
        begin, end, limit = inner["_M_start"], inner["_M_finish"], inner["_M_end_of_storage"]
    size = begin.type.strip_typedefs().target().sizeof
    if size == 0:
        raise NotReadable  # the program has no debug information about the elements
    first, last, reserved = int(begin), int(end), int(limit)
    if not first <= last <= reserved or (last - first) % size or (first != 0 and first == reserved):
        raise NotReadable
    count = (last - first) // size
    if count:
        begin.dereference().fetch_lazy()
        (begin + (count - 1)).dereference().fetch_lazy()
    return begin, count


def elements(value):
    begin, count = vector(value)
    for index in range(count):
        yield (begin + index).dereference()


def doubles(begin, count):
    """`count` doubles from an address on, read at once: outlines may have a million."""
    if count == 0:
        return ()
    memory = gdb.selected_inferior().read_memory(int(begin), 8 * count)
    return struct.unpack("=%dd" % count, bytes(memory))


def places(value):
    """The vertices of a std::vector<gkVector<2>> as pairs of numbers."""
    begin, count = vector(value)
    numbers = doubles(begin, 2 * count)
    return list(zip(numbers[0::2], numbers[1::2]))


def owned(value):
    """The object of a gk_Owned or None. A std::unique_ptr of either standard library is one pointer."""
    pointed = plain(value.type).template_argument(0).pointer()
    pointer = value["object_"].address.cast(pointed.pointer()).dereference()
    return pointer.dereference() if int(pointer) else None


def handled(value):
    """The object of a handle, as the class that it has, or None."""
    pointer = base_starting(value, "gk_Handle<")["object_"]
    if not int(pointer):
        return None
    try:
        pointer = pointer.cast(pointer.dynamic_type)
    except ERRORS:
        pass  # known by its handle's class alone
    return pointer.dereference()


def holders(value):
    """How many handles hold the handle's object."""
    count = base_starting(value, "gk_Handle<")["hold_"]["object_"].dereference()["count_"]
    return int(count.address.cast(gdb.lookup_type("int").pointer()).dereference())


def number(value):
    """The shortest text that reads back as the same number."""
    text = repr(float(value))
    return text[:-2] if text.endswith(".0") else text


def count_text(count, one, many):
    return "%d %s" % (count, one if count == 1 else many)
