"""The form that finds words on a screen of small pixels."""

from tour_chapters import finding, finding_while_reading

SCALE = 2
disc_made_of = finding_while_reading.disc_made_of

STOPS = (finding_while_reading.found_while_reading, finding.found_while_typing, finding.found_article,
         finding.nothing_found)
