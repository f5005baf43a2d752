// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/card_descriptions.h"

#include <array>
#include <cstddef>

namespace velmoriax::tarot {

namespace {

using Piece = std::string_view;

constexpr std::array magician{
    Piece{"The Magician is the archetype of the active masculine principle: the will that goes out to meet the "
          "world and gives it a shape."},
    Piece{" A young man stands behind a table where cups, coins, a knife and some dice wait for his hands; they "
          "are the tools of the four elements. With the wand he receives something from above, and with the other "
          "hand he leaves it here below. The brim of his hat forms an eight lying on its side, the sign of what "
          "has no end. He is number one and the pack begins with him: nothing is decided yet and everything is "
          "possible."},
    Piece{" In the mental plane he gives attention, initiative and a memory that finds the right word in time. In "
          "the physical plane he favors whoever is skillful with his hands, and he says that the moment to begin "
          "is this one; badly placed he becomes a trickster who lives on appearances. In the divine plane he is "
          "the unity from which all the numbers come, the maker who has not made anything yet. In synthesis: The "
          "Will. Sephirot: Kether (Crown, the first source)."},
};

constexpr std::array highPriestess{
    Piece{"The High Priestess is the guardian of unconscious knowledge, of everything that we know without "
          "remembering when we learned it."},
    Piece{" She sits without hurry between two columns, covered with a mantle, the triple crown on her head and an "
          "open book on her knees. The veil at her back hides the sanctuary; nobody passes it by force, but "
          "whoever can wait is allowed to lift a corner. She is number two: before her there was only one who "
          "acts, and with her there is one who receives, so that a conversation becomes possible."},
    Piece{" Hers in the divine plane is the wisdom that was there before the world, the dark water in which the "
          "first light could see itself. In the mental plane she gives reflection, study, a sound judgment of "
          "persons and the rare talent of keeping silent. In the physical plane she speaks of hidden matters that "
          "mature slowly, of a discreet lady, of a well kept secret; and when she comes inverted, of rancor, of "
          "laziness, of intentions not confessed. Sephirot: Chokmah (Wisdom). In synthesis: The Knowledge."},
};

constexpr std::array empress{
    Piece{"The Empress represents the fertile mother who gives birth to forms, and the intelligence that knows how "
          "to say what the Priestess kept silent."},
    Piece{" Crowned and wholly at ease she sits on her throne. In one hand she has the scepter of those who govern "
          "by making things grow, in the other a shield with an eagle, which is the thought that flies high and "
          "returns every evening to the nest. From the one and the two comes three, the first family."},
    Piece{" In the mental plane she gives clear ideas, elegance in speech, the art of being understood. In the "
          "physical plane she announces abundance in whatever has been sown, a house full of guests, the true "
          "friendship of women; inverted, vanity, waste, or a care that suffocates. In the divine plane she is "
          "nature, who has never repeated a single leaf. In synthesis: The Fertility, in body and in idea. "
          "Sephirot: Binah (Understanding)."},
};

constexpr std::array emperor{
    Piece{"The Emperor is the symbol of power. We see a man in profile, bearded, seated in the open air with his "
          "legs crossed in the form of a four."},
    Piece{" The scepter is in his hand; the shield with the eagle rests on the ground, within reach, since the one "
          "who is really strong does not need to hold it all day. Four are the walls of a house, the seasons and "
          "the points of the compass: his work is to set limits, and within them one can live."},
    Piece{" In the mental plane he gives order, method and firm opinions. In the physical plane he means "
          "stability, a contract, the backing of a person with authority; inverted, the tyrant, or the chief who "
          "is missing. In the divine plane he is the law by which the stars keep their course. In synthesis: The "
          "Realization. Sephirot: Chesed (Mercy, for power without it is only a weight)."},
};

constexpr std::array hierophant{
    Piece{"Except in rare cases each human being grows and learns within some tradition, and this card is the one "
          "who hands it over to us."},
    Piece{" The Hierophant sits between two columns. He carries the cross of three bars, which reaches through the "
          "three worlds, and with two raised fingers he blesses a pair of disciples whom we see from behind, "
          "because their place could very well be ours. Five is man with his arms and legs extended, the four of "
          "the Emperor with a spirit in the center that asks for reasons."},
    Piece{" In the divine plane he is the bridge, and a bridge has to be firm on both banks. In the mental plane "
          "he gives vocation, faith, good counsel and the gift of teaching. In the physical plane he tells of an "
          "alliance before witnesses, of a teacher, of a talk that clears away a doubt; inverted, of dogmas, of "
          "ceremonies without fire, of advice that serves the giver. In synthesis: The Inspiration. Sephirot: "
          "Geburah (Severity)."},
};

constexpr std::array lovers{
    Piece{"The Lovers or The Two Ways, and in others The Lover, is the card of the crossroads, and love is the "
          "first crossroads where we all have stood."},
    Piece{" A young man is placed between two women. One has the years and the laurels, the other one has flowers, "
          "and each lays a hand on him. He looks to one side although his feet are turned to the other; above, in "
          "the midst of the sun, Cupid bends the bow without asking for anybody's opinion. It does not matter so "
          "much which of the two is virtue and which is pleasure. What matters is that he cannot leave the place "
          "with both."},
    Piece{" In the mental plane the card gives the love of beautiful forms, and also indecision. In the physical "
          "plane it is union, a desire, a promise, an answer that has to be given; inverted, separation, "
          "infidelity or a choice made by others. In the divine plane it is free will, the most dangerous of the "
          "gifts that were given to man. In synthesis: The Election. Sephirot: Tiphereth (Beauty)."},
};

constexpr std::array chariot{
    Piece{"Imagine Julio Caesar driving his triumfal chariot through the streets of Rome, with a slave at his ear "
          "who repeats that he is mortal."},
    Piece{" So this prince comes, standing under a canopy of four columns, crowned and in armor, with a face on "
          "each shoulder: the moon when it grows and the moon when it wanes. Two horses pull the car, each to its "
          "own side, and there are no reins; he governs them with the mind. The Chariot closes the first way, the "
          "way of the spirit, and whoever has come so far knows what he wants and what it costs."},
    Piece{" In the mental plane it gives resolve, and an idea that finally goes forward. In the physical plane it "
          "means success, long travel, a piece of news, an old obstacle that gives way to a steady hand; inverted, "
          "haste, an accident caused by pride, a victory that cost more than it gave. In the divine plane it is "
          "the spirit that crosses matter and passes on, richer, to the other side. In synthesis: The Triumph. "
          "Sephirot: Netzach (Victory)."},
};

constexpr std::array justice{
    Piece{"It represents a great energy, or a concept not determined, that must be distributed with balance and "
          "justice."},
    Piece{" Justice opens the second way dedicated to the mental plane (there are 3 ways of 7 cards each one). "
          "Justice is one of the 4 cardinal virtues along with prudence, strength and temperance (also associated "
          "to the 4 elements of nature). The sword in a hand and a kid in the other representing balance and "
          "punishment, indicates severity."},
    Piece{" This card shows decision, aptitude for mathematics, precision, the search of a midpoint."},
    Piece{" In the physical plane is in contact with human justice, justice that gives or takes, rewards or "
          "punishes."},
    Piece{" In the divine plane it's the infallible and eternal justice (Karma's Law), it is the justice that "
          "generates rigor or mercy according to the merits of the heart. In synthesis: The Equity. Sephirot: Hod "
          "(Splendor, astral plane)."},
};

constexpr std::array hermit{
    Piece{"The Hermit or the Wise person is illuminated with a light of his own, and he holds it up in such a way "
          "that it dazzles nobody."},
    Piece{" We see an old man at night, with a long cloak, a staff and a lantern. The cloak is discretion, the "
          "staff is caution, which tries the ground before the foot comes down, and the lantern is what he has "
          "understood up to now: it reaches for a few steps, and when they have been taken it reaches for a few "
          "more. He has left the road of the many, although he has forgotten nobody who walks on it."},
    Piece{" In the mental plane he gives concentration, study, the patience to follow a question down to its root. "
          "In the physical plane he speaks of delay, of one discreet friend, of a truth found alone; inverted, of "
          "isolation, of avarice with what one knows, of a fear that calls itself wisdom. In the divine plane he "
          "is the guide who was seeking us while we were seeking him. In synthesis: The Prudence, first of the "
          "cardinal virtues. Sephirot: Yesod (Foundation, the hidden base of the work)."},
};

constexpr std::array wheelOfFortune{
    Piece{"The Wheel of Fortune suggests the cyclical progress of all things: what goes up comes down, and what is "
          "down has only to wait."},
    Piece{" Three strange animals travel on it. One rises, another descends, and the third keeps its balance on "
          "top with a crown and a sword, as if its turn would never come. There is a crank at the side, but the "
          "hand which moves it cannot be seen."},
    Piece{" In the mental plane it gives good sense, flexibility, the quick eye for an occasion. In the physical "
          "plane it means a change, mostly for the better, an unexpected opening, a journey; inverted, "
          "instability, or a repetition from which nothing was learned. In the divine plane it is the law of "
          "cycles, and in the center of the wheel there is a point that does not turn. In synthesis: The Destiny. "
          "Sephirot: Malkuth (Kingdom, the world that we touch)."},
};

constexpr std::array strength{
    Piece{"Normally we think about 'strength' in physical terms: muscles, iron, a closed fist. This card teaches "
          "something very different."},
    Piece{" A woman in a wide hat, which has once more the form of the eight lying on its side, takes the jaws of "
          "a lion in her bare hands. She makes no effort at all and does not even look at it. The lion is all that "
          "roars in us, hunger and rage and desire; she neither kills it nor locks it up in a cage, but listens "
          "and holds its mouth until the two of them breathe together. Here is another of the cardinal virtues."},
    Piece{" In the mental plane she gives courage, self-control and a conviction that feels no need of shouting. "
          "In the physical plane she means vitality, the triumph of patience over violence, the winning of a "
          "difficult person; inverted, anger, weakness, or cruelty, which is a weakness too. In the divine plane "
          "it is the strength of the spirit, which all the others obey with pleasure. In synthesis: The Courage."},
};

constexpr std::array hangedMan{
    Piece{"The Hanged Man or The Pillory (in older decks The Traitor) shows a young man who hangs by one foot from "
          "a beam between two trees without branches."},
    Piece{" His hands are behind his back and the free leg makes a cross with the other one. Nevertheless the face "
          "is serene, even a little amused, as if he had finally understood an old joke. What is a punishment for "
          "others is a point of view for him: his pockets are empty, the blood goes to his head, and for the first "
          "time he sees the roots of things above their crowns."},
    Piece{" In the divine plane the card is the gift of oneself. In the mental plane it gives detachment and "
          "original ideas. In the physical plane it indicates a pause, an accepted sacrifice, a promise that must "
          "be kept at a price; inverted, a useless sacrifice or a selfish one, or else plans that never come down "
          "from the tree. In synthesis: The Surrender."},
};

constexpr std::array death{
    Piece{"This arcanum is related to the hebraic letter Nun, the fish, that lives and multiplies where we should "
          "drown."},
    Piece{" In many decks the card has no name, as though it were better not to call it. A skeleton is mowing a "
          "black field where heads and hands are left over; one of the heads has a crown, because the scythe makes "
          "no distinctions of rank, and in between the grass is already green again."},
    Piece{" In the mental plane it is the end of a way of thinking. In the physical plane it means transformation, "
          "a separation, the closing of a stage of life, and only very rarely does it concern anybody's death; "
          "inverted, it is the change that we put off and that gets heavier."},
    Piece{" In the divine plane it is the seed, which has to disappear so that the ear of wheat may exist. In "
          "synthesis: The Renewal."},
};

constexpr std::array temperance{
    Piece{"There is certain kind of people who exude a serenity that changes the air of a room, and nobody knows "
          "how they do it."},
    Piece{" The angel of this card is one of them. Its wings are at rest; with a flower on the forehead it pours a "
          "liquid from one jug into another, in a stream that falls crosswise and is never spilled. The jugs are "
          "spirit and matter, yes and no, you and I. It is the last of the cardinal virtues that the pack shows by "
          "name, and it closes the second way."},
    Piece{" What runs between the jugs is, in the divine plane, life itself, which passes from one vessel to "
          "another and does not get lost on the way. In the mental plane the card gives moderation and the talent "
          "to seat at one table those who were not on speaking terms. In the physical plane it means honest "
          "dealings, a friendship mended, a matter which flows by itself; inverted, excess, impatience, interests "
          "that do not mix. In synthesis: The Harmony."},
};

constexpr std::array devil{
    Piece{"This arcanum is related to the hebraic letter Ayin, the eye, which believes only in what it sees."},
    Piece{" The Devil opens the third way, that of matter. He has antlers and the wings of a bat, lifts a torch "
          "with which he lights little, and at his feet two small beings, he and she, are tied by the neck to the "
          "pedestal. The rope is so loose that it seems a custom rather than a prison, and nobody remembers who "
          "tied it."},
    Piece{" In the mental plane he gives cunning, curiosity without limits, a word that attracts like a magnet. In "
          "the physical plane he means passion, ambition, money that comes fast and wants something in exchange; "
          "inverted, addiction, jealousy, or the hour in which the knot is discovered."},
    Piece{" In the divine plane he is the fire that fell to earth and asks to be lifted. In synthesis: The "
          "Instinct."},
};

constexpr std::array tower{
    Piece{"Fire, thunders, dented rocks falling -this sounds like the end of the world, and for those who lived on "
          "the top floor it is."},
    Piece{" A flame out of the sky lifts the crown from a tower as one lifts a lid. Two persons fall toward the "
          "grass with their hands in front, and many small colored spheres rain about them, as if the same blow "
          "which destroys were also sowing. They had built it with great effort, stone upon stone, to be safe from "
          "everything; the only thing that they forgot in it was a way out."},
    Piece{" In the physical plane it means a break, a move, the collapse of something that never was well founded, "
          "and afterward, often, relief; inverted, a crisis that has been patched too many times, or a great "
          "fright with little damage. In the mental plane it is sudden comprehension, the mistake seen entire. In "
          "the divine plane it is the light that enters by force where it was not invited. In synthesis: The "
          "Liberation. And a lesson for the next house: to build it lower, and with windows."},
};

constexpr std::array star{
    Piece{"People always have watched the stars like a source of direction: by them the sailors found the port and "
          "the farmers the day of sowing."},
    Piece{" Under one great star and seven smaller ones a naked woman kneels at the edge of the water. She empties "
          "two pitchers, one into the pond and the other onto the earth, and gives to both the same. Nothing "
          "covers her because she has nothing to hide; in the tree a bird waits, which is the soul, or simply a "
          "bird that likes the place."},
    Piece{" To the mind the card gives inspiration and confidence. In the physical plane it means a hope that "
          "rests on good ground, a help that one had not asked for, the calm after the tower; inverted, "
          "disappointment, or a dream so distant that it becomes an excuse for not walking."},
    Piece{" In the divine plane it is the grace that pours itself out and never counts. In synthesis: The Hope. It "
          "is the card of those who rise early and of those who go to bed very late, for the same sky."},
};

constexpr std::array moon{
    Piece{"The Moon symbolizes the hidden enemies, dangers that have no face, and also the treasures that are kept "
          "at the bottom of the water."},
    Piece{" In the sky there is a face in profile, and drops fall or rise between it and the earth. Two dogs howl, "
          "one tame and one wild; behind them two towers mark the border of the known country. In front, out of a "
          "pool, comes a crayfish, an animal that walks backward, as memory does when it is looking for something. "
          "No human being appears in this card: the one who walks there at night is you."},
    Piece{" In the mental plane it gives imagination, dreams, an intuition that has to be verified by daylight. In "
          "the physical plane it means gossip, deceit, a confused affair of the heart, news out of the distant "
          "past; inverted, the mist goes away and the fear looks smaller. In the divine plane it is the mirror, "
          "that has no light of its own and nevertheless guides the traveler. In synthesis: The Illusion."},
};

constexpr std::array sun{
    Piece{"In general, the symbolism reveals that the arcanum of the Sun is the most benevolent of the pack, the "
          "one before which the shadows get shorter."},
    Piece{" A golden face looks at us with straight rays, which give light, and wavy ones, which give heat. Under "
          "it two children stand together before a low wall, arm over arm, and bright drops fall over them without "
          "wetting them."},
    Piece{" In the mental plane it gives clarity, frankness, the idea that everybody understands at the first "
          "attempt."},
    Piece{" In the physical plane it means friendship, a happy union, a work that deserves to be shown; inverted, "
          "vanity, too much brightness, a success that is late in coming."},
    Piece{" In the divine plane it is the light that is divided among all and never becomes less for it. After the "
          "night of the previous card nobody asks for explanations: it is enough to be warm. In synthesis: The "
          "Joy. The two children are brothers, or they are the body and the soul on the day when they finally play "
          "together."},
};

constexpr std::array judgment{
    Piece{"A Cycle is fulfilled. There is a judgment and an awakening, and both begin with a sound."},
    Piece{" An angel comes out of the clouds with a trumpet from which a banner hangs. Down below a man and a "
          "woman pray on both sides of an open tomb, and in it a third person stands up, with his back to us; "
          "perhaps he is their child, or the person that each of us was going to be. It is not a court in which "
          "somebody reads a list of faults. What is judged there is only this: whether one hears the call."},
    Piece{" In the mental plane it gives a sudden idea, the full comprehension of the past. In the physical plane "
          "it means important news, a return, a matter that was believed buried and gets up again, an old debt "
          "that is forgiven; inverted, doubts, a delay, a decision which one regrets because it was not one's own. "
          "In the divine plane it is the breath that enters the clay for a second time. In synthesis: The Rebirth. "
          "The trumpet sounds for all, and each one hears his name."},
};

constexpr std::array fool{
    Piece{"The Fool is the most conflictive card of Tarot, because no two readers agree on the place where he "
          "belongs: some put him at the beginning, some at the very end, and many leave him without a number so "
          "that he may walk freely among the others. Here he is the twenty-first, the last step of the third way. "
          "He goes with a staff, with bells on his dress and over his shoulder a bundle in which there is hardly "
          "anything; an animal tears his breeches and he does not turn around. Perhaps he has not learned anything "
          "yet, perhaps he has managed to forget it all, and from behind, on the road, nobody can tell the one "
          "from the other."},
    Piece{" In the mental plane he gives spontaneity, a brilliant mind in great disorder. In the physical plane he "
          "means a departure, a surprise, a first step in a direction that no map shows; inverted, carelessness, a "
          "flight, a folly for which the others will have to pay. In the divine plane he is the spirit, which came "
          "without luggage and is not afraid of leaving the same way. In synthesis: The Freedom."},
};

constexpr std::array world{
    Piece{"This card represents the culmination (we must remember that in this pack the World is the number 22, "
          "and the Fool comes before it). Whoever has walked through the three ways of seven cards will find here "
          "the square where they meet."},
    // no blank before it: the text runs on
    Piece{"A dancer moves inside a wreath of leaves with a light scarf for all her clothing. In the corners the "
          "angel, the eagle, the lion and the ox, which are the four elements, make up her audience. To the mind "
          "she gives the wide view and the quiet pleasure of work well finished. In the physical plane she means "
          "success, recognition, a long journey, one's right place; inverted, an obstacle at the very last step, "
          "or a happiness afraid of moving. In the divine plane she is the whole, which dances and has no other "
          "reason. In synthesis: The Fulfillment."},
};

constexpr std::array<std::span<const Piece>, 22> descriptions{
    magician, highPriestess,  empress,  emperor,   hierophant, lovers,     chariot, justice,
    hermit,   wheelOfFortune, strength, hangedMan, death,      temperance, devil,   tower,
    star,     moon,           sun,      judgment,  fool,       world,
};

} // namespace

std::span<const std::string_view> cardDescriptionPieces(int card) {
    if (card < 1 || card > static_cast<int>(descriptions.size())) return {};
    return descriptions[static_cast<std::size_t>(card - 1)];
}

} // namespace velmoriax::tarot
