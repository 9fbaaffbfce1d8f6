"""A disc that is damaged, changed and pulled out while the program reads it."""

import shutil


class UnsteadyDisc:
    """A copy of a disc's folder. All that happens to it comes from the given source of chances."""

    def __init__(self, original, folder, chances):
        self.folder = folder
        self._original = original
        self._chances = chances
        self._elsewhere = folder.with_name(folder.name + " pulled out")
        self._files = sorted(file.relative_to(original) for file in original.rglob("*") if file.is_file())
        self._touched = {}  # what is at a place now, by the name of the original
        shutil.copytree(original, folder)

    def is_in(self):
        return self.folder.is_dir()

    def suffer(self):
        """Something happens to the disc; returns what, in words."""
        deeds = [(self._pull_out, 3), (self._put_back_all, 3), (self._put_back_one, 4), (self._cut_short, 3),
                 (self._overwrite, 3), (self._scratch, 3), (self._empty, 1), (self._rename, 3), (self._remove, 4),
                 (self._make_a_folder, 1), (self._swap, 2), (self._pull_out_a_folder, 1)]
        if not self.is_in():
            deeds = [(self._put_in, 1)]
        deed = self._chances.choices([deed for deed, _ in deeds], [weight for _, weight in deeds])[0]
        return deed()

    def restore(self):
        """The whole disc is in the drive again."""
        if not self.is_in():
            self._put_in()
        self._put_back_all()

    def _pull_out(self):
        self.folder.rename(self._elsewhere)
        return "pull the disc out"

    def _put_in(self):
        self._elsewhere.rename(self.folder)
        return "put the disc in"

    def _pull_out_a_folder(self):
        name = self._chances.choice(sorted({file.parts[0] for file in self._files}))
        for file in self._files:
            if file.parts[0] == name:
                self._clear(file)
        return f"remove all of {name}"

    def _put_back_one(self):
        if not self._touched:
            return "nothing to put back"
        file = self._chances.choice(sorted(self._touched))
        self._put_back(file)
        return f"put {file} back"

    def _put_back_all(self):
        for file in sorted(self._touched):
            self._put_back(file)
        return "put all files back"

    def _put_back(self, file):
        self._clear(file)
        self._touched.pop(file)
        shutil.copy(self._original / file, self.folder / file)

    def _clear(self, file):
        """Takes away what stands in a file's place."""
        place = self._touched.get(file, self.folder / file)
        if place is not None and place.is_dir():
            place.rmdir()
        elif place is not None:
            place.unlink()
        self._touched[file] = None

    def _choose(self):
        """A whole file; each folder of the disc comes as often as any other, however many files it holds."""
        folder = self._chances.choice(sorted({file.parts[0] for file in self._files}))
        whole = [file for file in self._files if file.parts[0] == folder and file not in self._touched]
        return self._chances.choice(whole) if whole else None

    def _change(self, verb, change):
        """Does something to a whole file where it lies, as it may be open in the program."""
        file = self._choose()
        if file is None:
            return "nothing is whole"
        self._touched[file] = change(self.folder / file)
        return f"{verb} {file}"

    def _cut_short(self):
        def change(place):
            with open(place, "r+b") as content:
                content.truncate(self._chances.randrange(place.stat().st_size + 1))
            return place
        return self._change("cut short", change)

    def _empty(self):
        def change(place):
            with open(place, "r+b") as content:
                content.truncate(0)
            return place
        return self._change("empty", change)

    def _overwrite(self):
        def change(place):
            size = place.stat().st_size
            with open(place, "r+b") as content:
                content.write(self._chances.randbytes(size))
            return place
        return self._change("overwrite with noise", change)

    def _scratch(self):
        def change(place):
            size = place.stat().st_size
            with open(place, "r+b") as content:
                for _ in range(self._chances.randint(1, 20)):
                    content.seek(self._chances.randrange(size + 1))
                    content.write(self._chances.randbytes(self._chances.randint(1, 64)))
            return place
        return self._change("scratch", change)

    def _remove(self):
        def change(place):
            place.unlink()
        return self._change("remove", change)

    def _rename(self):
        def change(place):
            return place.rename(place.with_name(f"moved {place.name}"))
        return self._change("rename", change)

    def _make_a_folder(self):
        def change(place):
            place.unlink()
            place.mkdir()
            return place
        return self._change("put a folder in the place of", change)

    def _swap(self):
        """Another file's content under this name, such as a photo's under an article's."""
        other = self._original / self._chances.choice(self._files)

        def change(place):
            place.write_bytes(other.read_bytes())
            return place
        return self._change(f"put {other.name} in the place of", change)
