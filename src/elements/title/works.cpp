// Works that titles of other works speak of.

#include <iterator>

#include "elements/title/names.h"

namespace quorvel::titlenames {

// clang-format off
const WordList kWorks[] = {
    // Works spoken of in titles of works.
    {u"Heart of Darkness|Things Fall Apart|Jane Eyre|Pride and Prejudice|Mansfield Park|Northanger Abbey|"
     u"Sense and Sensibility|Bleak House|David Copperfield|Oliver Twist|Vanity Fair|Middlemarch|Daniel Deronda|"
     u"Great Gatsby|Merchant of Venice|Twelfth Night|Midsummer Night's Dream|Measure for Measure|Julius Caesar|"
     u"Antony and Cleopatra|Much Ado About Nothing|Winter's Tale|Richard II|Henry IV|Henry V|Henry VIII|"
     u"Titus Andronicus|Troilus and Cressida|Troilus and Criseyde|As You Like It|Wide Sargasso Sea|Native Son|"
     u"Their Eyes Were Watching God|Song of Solomon|Bluest Eye|Go Down, Moses|Sound and the Fury|As I Lay Dying|"
     u"Sun Also Rises|Farewell to Arms|Scarlet Letter|Yellow Wallpaper|Turn of the Screw|Portrait of a Lady|"
     u"House of Mirth|Lord Jim|Lord of the Flies|Nineteen Eighty-Four|Animal Farm|Finnegans Wake|"
     u"Passage to India|Howards End|Sons and Lovers|Mrs. Dalloway|Jacob's Room|To the Lighthouse|"
     u"Waiting for Godot|Death of a Salesman|Divine Comedy|Decameron|Faerie Queene|Piers Plowman|"
     u"Sir Gawain and the Green Knight|Pilgrim's Progress|Gulliver's Travels|Robinson Crusoe|Moll Flanders|"
     u"Rape of the Lock|Dunciad|Lyrical Ballads|Don Quixote|Madame Bovary|Anna Karenina|Brothers Karamazov|"
     u"Death in Venice|Midnight's Children|Satanic Verses|Handmaid's Tale|Arabian Nights|"
     u"Thousand and One Nights|Tale of Genji|Dream of the Red Chamber|Bhagavad Gita|Book of Job|"
     u"Book of Revelation|Book of Genesis|Book of Daniel|Sermon on the Mount|Song of Songs|Hebrew Bible|"
     u"Book of Common Prayer|King James Bible|Critique of Pure Reason|Phenomenology of Spirit|Being and Time|"
     u"Citizen Kane|Blade Runner|Birth of a Nation|Magic Flute|Rite of Spring|Game of Thrones|"
     u"Buffy the Vampire Slayer|Wizard of Oz|Plato's Republic|Plato's Symposium|Plato's Apology|Plato's Laws|"
     u"Aristotle's Politics|Aristotle's Ethics|Aristotle's Poetics|Aristotle's Metaphysics|Nicomachean Ethics|"
     u"Spinoza's Ethics|Hobbes's Leviathan|Hobbes' Leviathan|Milton's Paradise Lost|More's Utopia|"
     u"Newton's Principia|Newton's Opticks|Augustine's Confessions|Rousseau's Confessions|Ovid's Metamorphoses|"
     u"Kafka's Metamorphosis|Morrison's Beloved|Morrison's Jazz|Morrison's Paradise|Morrison's Sula|"
     u"Austen's Emma|Austen's Persuasion|Joyce's Dubliners|Wordsworth's Prelude|Nella Larsen's Passing|"
     u"Larsen's Passing|Larsen's Quicksand|Butler's Kindred|McEwan's Atonement|McCarthy's The Road|"
     u"Coetzee's Disgrace|Coetzee's Foe|Richardson's Clarissa|Richardson's Pamela|Fielding's Tom Jones|"
     u"Shelley's Frankenstein|Stoker's Dracula|Woolf's Orlando|Woolf's The Waves|Hitchcock's Vertigo|"
     u"Hitchcock's Psycho|Hitchcock's Rear Window|Machiavelli's Prince|Machiavelli's The Prince"},
};
// clang-format on
const std::size_t kWorksCount = std::size(kWorks);

}  // namespace quorvel::titlenames
