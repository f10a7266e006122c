"""What is changed in a source, and what is left alone."""

import unittest

from mutants import Source


def changed(code):
    """What becomes of the code, one text for each mutant."""
    return [m.apply(code) for m in Source("file.cpp", code).mutants()]


def body(statement):
    return f"void f() {{ {statement} }}"


class Mutants(unittest.TestCase):
    def expect(self, statement, *others):
        self.assertEqual([body(other) for other in others], changed(body(statement)))

    def test_comparisons_lose_or_gain_equality(self):
        self.expect("while (a < b) c.d;", "while (a <= b) c.d;")
        self.expect("while (a >= b) c.d;", "while (a > b) c.d;")
        self.expect("while (a == b) c.d;", "while (a != b) c.d;")

    def test_binary_signs_are_exchanged(self):
        self.expect("x y = a + -b;", "x y = a - -b;")
        self.expect("while (a && !b) c.d;", "while (a || !b) c.d;")
        self.expect("x y = a\n - b;", "x y = a\n + b;")

    def test_angle_brackets_of_templates_stay(self):
        self.expect("std::array<double, 4> a{};")
        self.expect("const gkVector<2>& a(b);")

    def test_numbers_grow(self):
        self.expect("x y = 3;", "x y = 4;", "x y = 6;")
        self.expect("x y = 0;", "x y = 1;")
        self.expect("x y = 1u;", "x y = 2u;")
        self.expect("x y = 1e-6;", "x y = (1e-6 + 1);", "x y = (1e-6 * 2);")
        self.expect("x y = 0x1p-49;", "x y = (0x1p-49 + 1);", "x y = (0x1p-49 * 2);")
        self.expect("x y = a[1];", "x y = a[0];")

    def test_calls_and_assignments_are_left_out(self):
        self.expect("if (a) b(c, {d});", "if (a) ;")
        self.expect("a.b->c(d);", ";")
        self.expect("a.valid = b;", ";")
        self.expect("a[b] += c;", ";", "a[b] -= c;")

    def test_declarations_stay(self):
        self.expect("auto a = b;")
        self.expect("gk_Box a(b);")
        self.expect("std::vector<double> a(b);")

    def test_conditions_are_negated_where_they_are_returned(self):
        self.expect("return a < b;", "return !(a < b);", "return a <= b;")
        self.expect("return a ? b : c;")
        self.expect("return true;", "return !(true);")

    def test_jumps_are_left_out(self):
        self.expect("for (;;) break;", "for (;;) ;")

    def test_text_that_is_no_code_stays(self):
        self.assertEqual([], changed("#include <a + 1>\n// a < 1\n/* b == 2\n 3 */\nconst char* c = \"4 + 5\";"))
        self.expect("static_assert(a < 1);")
        self.expect("a.reserve(b + 1);")

    def test_the_second_change_of_a_kind_in_a_line_has_a_number(self):
        changes = [m.change for m in Source("file.cpp", body("x y = a + b + c;")).mutants()]
        self.assertEqual(["`+` to `-`", "`+` to `-` #2"], changes)


if __name__ == "__main__":
    unittest.main()
