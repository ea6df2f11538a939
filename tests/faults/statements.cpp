#include "statements.h"

#include <algorithm>
#include <sstream>

namespace tarnwick {
namespace {

// A routine, and indented beneath it its statements; those in a loop have a star. Each of the different
// statements that a condition leads to is listed.
constexpr const char* list = R"(
column_to_column
  no move was made | does a card slide? | land it | does the card come from the tablet?
  move it from the tablet | does it come from an ace pile? | move it from its ace pile
  move it from its column
from_tablet_to
  help is welcome | is it dropped on the tablet? | give no help | is the card an ace?
  find an empty ace pile | find the ace pile of its suit | send it there | is it dropped on an ace pile?
  offer it to the ace pile | offer it to the column
from_column_to
  help is welcome | is it dropped on an ace pile? | offer it to the ace pile
  is it dropped on its own column? | give no help | is the card an ace? | find an empty ace pile
  find the ace pile of its suit | send it there | offer it to the column
from_ace_to
  may the card leave for a column? | offer it to the column
from_tablet_to_column
  is the column empty? | is the card a King? | does the card build on the column?
  lay the card on the column | hide the card | redisplay the column | take the card from the tablet
  record the move | a move was made
from_column_to_column
  where does the column end? | * does a run from this card build? | * does a King fill the empty column?
  * does the other column continue a King's run? | * run: lay a card on the column
  * run: shorten its own column | * run: hide the card | run: redisplay its own column
  run: redisplay the column | run: record the move | exchange: where does the other column end?
  * exchange: copy a card onto the King's run | * exchange: copy a card into the other column
  exchange: lengthen the other column | exchange: shorten the King's column | exchange: record the way there
  exchange: redisplay the King's column | exchange: redisplay the other column
  exchange: record the way back | a move was made
from_ace_to_column
  is the column empty? | is the card a King? | does a two leave its ace?
  does the card build on the column? | lay the card on the column | hide the card | hide the ace
  leave the ace alone | is the card beneath of the rank below? | uncover the rank below
  uncover the other card of the rank | move the cards beneath up | lose a point | show the score
  redisplay the column | redisplay the ace pile | record the move | a move was made
to_ace
  is the pile empty? | is the card an ace? | is the card of another suit? | does its rank come next?
  does it come from a column? | move it from its column | move it from the tablet | the card was placed
  is help wanted? | find words for it | show the message
tablet_to_ace
  is the pile empty? | does the card slide? | start the pile | cover the pile | slide: name the card
  slide: name the card beneath | slide: name the source | slide: name the ace pile | slide: count the steps
  slide: start the clock | redisplay the pile | take the card from the tablet
  slide: keep the card in front | record the move | score it
layout_to_ace
  is the pile empty? | does the card slide? | start the pile | cover the pile | shorten the column
  slide: name the card | slide: name the card beneath | slide: name the source | slide: name the ace pile
  slide: count the steps | slide: start the clock | redisplay the pile | redisplay the column
  slide: keep the card in front | record the move | score it
next_tablet_card
  are cards of this pass left? | are more than five of them left? | turn five: record it | turn five
  turn five: hide the card shown | turn five: show the last of them | turn the rest: empty the stock's place
  turn the rest: hide the card shown | turn the rest: show the last card | turn the rest: record it
  turn the rest | new pass: hide the card shown | is the tablet empty? | nothing to turn: hide the stock
  are fewer than five left? | last pass: hide the stock | last pass: show the last card
  last pass: record it | last pass: turn all | new pass: show the stock | new pass: show the fifth card
  new pass: record it | new pass: turn five | is a card turned? | display it
take_from_tablet
  uncover the card beneath | is there one? | display it | show it | turn none | show the empty place
  find the gap | * close it by a slot | end a slot earlier | earn a point | show the score
  is nothing left to turn? | hide the stock
)";

StatementList parsed() {
    const std::string separator = " | ";
    StatementList statements;
    std::istringstream lines(list);
    std::string routine;
    for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with("  ")) {
            routine = line;
            continue;
        }
        for (std::size_t begin = 2; begin < line.size();) {
            const std::size_t end = std::min(line.find(separator, begin), line.size());
            const std::string name = line.substr(begin, end - begin);
            const bool repeats = name.starts_with("* ");
            statements[routine].push_back({name.substr(repeats ? 2 : 0), repeats});
            begin = end + separator.size();
        }
    }
    return statements;
}

}  // namespace

const StatementList& listed_statements() {
    static const StatementList statements = parsed();
    return statements;
}

}  // namespace tarnwick
