#include "sample/photos/captions.h"

#include "sample/files/rtf_writer.h"
#include "sample/files/text_store.h"
#include "sample/photos/photographed_car.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

/// The choices of a section of the stored captions.
QStringList Choices(const QString& section)
{
    static const std::map<QString, TextSection> sections = StoredSections(u"captions"_s);
    const auto found = sections.find(section);
    return found == sections.end() ? QStringList() : found->second.body.split(u'\n', Qt::SkipEmptyParts);
}

QString Pick(const QString& section, int variant)
{
    const QStringList choices = Choices(section);
    return choices[variant % choices.size()];
}

/// How the sections name views, places and motifs, each in the order of its numbers.
constexpr const char* views[] = {"FrontLeft", "FrontLeft", "Side",   "Side",  "RearLeft", "RearLeft",
                                 "High",      "LowFront",  "HeadOn", "Wheel", "Nose",     "Tail"};
constexpr const char* places[] = {"Coast", "Desert", "City", "Strip", "Showroom", "Snow", "Autumn", "Studio"};
constexpr const char* motifs[] = {"Car",     "Dashboard", "Badge",   "Engine",    "Stamps", "Sign",
                                  "DieCast", "Knife",     "Cookies", "BoardGame", "Clay",   "Sketch"};

template <typename Kind, std::size_t count>
QString NameOf(const char* const (&names)[count], Kind kind)
{
    return QString::fromLatin1(names[static_cast<std::size_t>(kind)]);
}

QString CarText(const PlannedPhoto& photo)
{
    return Pick(u"view "_s + NameOf(views, photo.view), photo.variant) + u": a car in "_s +
           PaintOf(photo).name + u' ' + Pick(u"place "_s + NameOf(places, photo.place), photo.variant) +
           u". "_s + Pick(u"owner"_s, photo.variant + photo.number);
}

QString TopicText(const PlannedPhoto& photo)
{
    const QString section = u"caption "_s + NameOf(motifs, photo.motif);
    switch (photo.motif) {
    case Motif::Car:
        return CarText(photo);
    case Motif::Dashboard:
    case Motif::Engine:
    case Motif::Badge:
        return Pick(section, photo.variant);
    case Motif::Clay:
        return Pick(section, photo.number);
    case Motif::Sketch:
        return Pick(section, photo.number / 3);
    default:
        return Pick(section, photo.number - 1);
    }
}

QString Heading(const PlannedPhoto& photo)
{
    for (const Topic& topic : Topics()) {
        if (topic.prefix == photo.prefix)
            return topic.title + u", no. "_s + QString::number(photo.number);
    }
    return QString::number(photo.year) + u" Torvik Vollandry"_s;
}

QString NoteText(const PlannedPhoto& photo)
{
    const QString section = u"note "_s + NameOf(motifs, photo.motif);
    return Pick(Choices(section).isEmpty() ? u"note"_s : section, photo.number);
}

} // namespace

Caption CaptionOf(const PlannedPhoto& photo)
{
    return {photo.Stem().toLower() + u".rtf"_s, ShortDocument(Heading(photo), TopicText(photo))};
}

std::vector<Caption> PlanNotes()
{
    std::vector<Caption> notes;
    for (const PlannedPhoto& photo : PlanPhotos()) {
        for (const Topic& topic : Topics()) {
            if (topic.prefix != photo.prefix || topic.notePrefixLow.isEmpty())
                continue;
            const QString& prefix = photo.number < 5 ? topic.notePrefixLow : topic.notePrefixHigh;
            notes.push_back({prefix + QString::number(photo.number * 2) + u".rtf"_s,
                             ShortDocument(Heading(photo), NoteText(photo))});
        }
    }
    // The art print has no photos of its own; its notes go by the number that is still on show.
    int number = 0;
    for (const QString& text : Choices(u"note of the art print"_s))
        notes.push_back(
            {u"glsj0%1.rtf"_s.arg(number += 2), ShortDocument(u"Arlen Mercer Art Print"_s, text)});
    return notes;
}

} // namespace torvik::sample
