#!/usr/bin/python3 -B
"""The comma and period keys on keyboards of several countries, as the X server hands them on."""

from support.case import ProgramTest, run

# Keys by their place, whatever a country has on them: the number that the X server gives to each.
LEFT_OF_COMMA, AMERICAN_COMMA, AMERICAN_PERIOD = "58", "59", "60"
BESIDE_LEFT_SHIFT, KEYPAD_DECIMAL = "94", "91"


class KeyboardLayouts(ProgramTest):
    disc = None

    def browse_with(self, layout):
        self.screen = self.make_screen()
        self.screen.use_layout(layout)
        self.disc = self.disc or self.make_disc()
        self.program = self.start(self.screen, self.disc.folder)
        self.program.start_browsing()
        self.program.click("69")
        self.wait_for_number(1)

    def wait_for_number(self, number):
        self.program.wait_for_view(title="1969", number=str(number), focus="70")

    def check_steps(self, back, forward):
        """From the first photo of five."""
        for key, number in ((forward, 2), (forward, 3), (back, 2), (back, 1)):
            self.program.press(key)
            self.wait_for_number(number)

    def check_passed_over(self, *keys):
        """A step follows that is seen, so these are not merely late."""
        self.program.press(*keys, AMERICAN_PERIOD)
        self.wait_for_number(2)
        self.program.press(*keys, AMERICAN_COMMA)
        self.wait_for_number(1)

    def test_on_an_american_one_they_step_with_and_without_shift(self):
        self.browse_with("us")
        self.check_steps(AMERICAN_COMMA, AMERICAN_PERIOD)
        self.check_steps(f"shift+{AMERICAN_COMMA}", f"shift+{AMERICAN_PERIOD}")

    def test_on_a_german_one_where_shift_makes_semicolon_and_colon_too(self):
        self.browse_with("de")
        self.check_steps(AMERICAN_COMMA, AMERICAN_PERIOD)
        self.check_steps(f"shift+{AMERICAN_COMMA}", f"shift+{AMERICAN_PERIOD}")

    def test_on_a_french_one_they_are_the_keys_with_these_characters(self):
        self.browse_with("fr")
        self.check_steps(LEFT_OF_COMMA, f"shift+{AMERICAN_COMMA}")

    def test_the_decimal_key_of_the_keypad_is_another_key(self):
        for layout in ("us", "de"):
            self.browse_with(layout)
            self.check_passed_over(KEYPAD_DECIMAL)
            self.program.press("Num_Lock")
            self.check_passed_over(KEYPAD_DECIMAL)
            self.check_passed_over(f"shift+{KEYPAD_DECIMAL}")
            self.program.kill()

    def test_a_key_of_its_own_for_less_and_greater_is_another_key(self):
        self.browse_with("de")
        self.check_passed_over(BESIDE_LEFT_SHIFT)
        self.check_passed_over(f"shift+{BESIDE_LEFT_SHIFT}")

    def test_the_slide_show_tells_them_apart_in_the_same_way(self):
        self.browse_with("de")
        self.program.click("SlideShow")
        comma, period = AMERICAN_COMMA, AMERICAN_PERIOD
        for keys, number in (([], 5), ([period], 6), ([f"shift+{period}"], 7), ([BESIDE_LEFT_SHIFT, period], 8), ([comma], 7),
                             ([f"shift+{BESIDE_LEFT_SHIFT}", comma], 6), ([f"shift+{comma}"], 5)):
            if keys:
                self.program.press(*keys)
            self.program.wait_for(f"{number} of {len(self.disc.photos)}")


if __name__ == "__main__":
    run()
