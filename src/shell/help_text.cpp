// SPDX-License-Identifier: MIT
#include "shell/help_text.h"

#include <string_view>

namespace kalvon {

namespace {

// A line of the source is a paragraph of the panel, which wraps it to its width.
constexpr std::string_view help = R"(Vostrand KALVON Multimedia 1.1

1. Loading crosswords"
2. Solving crosswords
3. Saving crosswords
4. Additional features
5. Vostrand Kalvonics

1. Loading crosswords

Press Load. A window opens with a list of drives, a list of folders and a list of the crosswords in the chosen folder. Double-click a folder to enter it. Click a crossword and its name, its dimensions and a brief description appear below. OK loads it, and so does a double click on its name or the Enter key in the list. CANCEL goes back to the crossword that you had.

A crossword is a file whose name ends in "qvm". When its pictures, sounds and videos come with it, they stand in a file of the same name that ends in "qvd". Keep both in the same folder.

Some large crosswords come in installments: files whose names are the same five characters and a number of three digits, such as "frost001.qvm" and "frost002.qvm". Put those that you have into one folder and load any of them. The program finds the others by their numbers and joins them into one grid, side by side or one below the other. A missing installment leaves black squares in its place; when you get it later, put it there too and load the crossword again.

A crossword that cannot be read does not load, and the line under the grid says why. F5 in the window shows files that are new in the folder.

2. Solving crosswords

On the left stand the clues, Across above and Down below. On the right stands the grid, of which you see up to 15 by 15 cells; the scroll bars move the rest into sight, and so does the mouse wheel. Along the edges of the grid stand the last digits of the numbers of its columns and rows.

To choose a word, click one of its cells, or click its clue in a list. The chosen word and its clue are marked, and the grid moves if the word is out of sight. A second click on the chosen word in the grid turns to the word that crosses it there.

The row of boxes at the top shows the letters of the chosen word, with a low line for each one that is missing. Type your answer there: each letter goes into its box, and the next box follows. When you are ready press Enter, which writes the word into the grid. If you choose another word before you have pressed Enter, what you typed is forgotten.

These keys work in the boxes:
A to Z - puts the letter in and moves on
Space - empties the box and moves on
Backspace - empties the box and moves back
Delete - empties the box
Left, Up - moves back
Right, Down - moves on
Home, End - moves to the first or to the last letter
Enter - writes the word into the grid

In a word of more than 15 letters the boxes slide; the numbers above them tell which letters they show. With Letters of all keyboards in the menu you can type on a Serbian keyboard too.

When you are stuck, Solve writes the right letters of the chosen word into the grid, and Erase takes all its letters out again, also those that belong to crossing words.

Multimedia

A clue with a small icon has something to see or to hear: a picture, a text, a sound or music, or a video. Click the clue with the right mouse button. A pane opens over the list and shows the clue, and below it the picture, the text or the video. Sounds, music and videos start by themselves; the bar has buttons to play, to pause and to stop.

Click the pane to close it. A running video is closed by a click only when it has ended or has been stopped. Choosing another word, opening the options and loading a crossword close the pane too.

3. Saving crosswords

Press Save. The letters that stand in the grid are written into the crossword file itself, and those of installments each into its own file. When you load the crossword again, you find it as you left it. The solutions and the clues stay as they are.

The program neither asks nor saves by itself: press Save before Exit and before you load another crossword. What you typed into the boxes belongs to the grid only after Enter.

Letters that you have not saved wait for you: when you load the crossword again, Ctrl+Y brings them back, step by step. After a crash they are there at once.

Should the disk be full or the file be protected, the file stays as it was, and the line under the grid says so.

4. Additional features

The line under the grid says what just happened and how many cells are filled; Show time in its menu, under View, adds the hours and minutes that you have spent on the crossword. Its button Menu, or the key F10, shows every command with its keys:
Ctrl+O, Ctrl+S, Ctrl+Q - load, save, exit
Ctrl+Shift+O - opens a crossword of another program: ipuz, puz, jpz or xd; so does dropping it here
Ctrl+Shift+S, Ctrl+P - writes such a file, or a PDF; prints
Ctrl+Z, Ctrl+Y - undo and redo, back to the first step
Ctrl+L - solves the letter of the box
Ctrl+R, Ctrl+B - solve and erase the word; with Shift, the puzzle
Ctrl+N - goes to the next word with an empty cell
Ctrl+K - counts the incorrect letters; with Shift, erases them
Ctrl and +, -, 0 or the mouse wheel, F11 - the size of the window, full screen
Ctrl+T, F1 - options, help
Ctrl and an arrow - goes to the next cell of the grid, over the black ones
Ctrl+Enter - turns to the other word of the cell
Alt+Down, Alt+Up - go to the next clue of the list and back; Alt+Left or Alt+Right to the other list
Page Down, Page Up - turn the page of the list
Alt+Enter, Esc - open what the clue has to see or to hear, and close it
Ctrl+M - plays it, or makes a pause; with Shift, stops it

Choices in the menu are remembered. With one, a click on a cell that has only one word always chooses that word. With the other, each letter goes into the grid as you type it, without Enter, and Ctrl+Z brings the whole word back as it was.

High contrast in the menu draws everything in black and white, and the chosen word and its clue in yellow with dashes below. To a screen reader the grid is a table and the clues are lists; pressing the grid enters the word, as the Enter key does.

Options opens a window for the whole crossword. Each of its four buttons acts at once:
Erase all words - takes every letter out of the grid
Solve puzzle - writes the whole solution into the grid
No. of incorrect letters - counts the letters that are wrong; empty cells do not count
Erase incorrect letters - takes out those that are wrong and leaves the rest

Below you find the statistics: the dimensions, the number of words, across and down, of black and of active fields, and of all fields. OK goes back to the grid.

Alt and the underlined letter press a button. Solve and Options share the O: there Alt and O choose one and then the other, and Space presses the chosen one.

Help opens this text, which you move with the scroll bar, the arrow keys, Page Up and Page Down. Press Help again, double-click the text or type any letter to close it.

On Exit the program remembers the folder from which you load crosswords, and for each crossword what you did in it.

5. Vostrand Kalvonics

Kalvonics is the old and patient art of putting one letter into one cell, and of finding that the word across and the word down agree about it. It needs no speed. Begin with the short words and with the clues that make you smile, let the crossing letters help you with the long ones, and trust a word only when two others pass through it.

The crosswords that came with this program were made by the people who wrote it. Good solving!
)";

}  // namespace

std::string HelpText() {
  std::string text;
  for (const char character : help) {
    if (character == '\n') text += '\r';
    text += character;
  }
  return text;
}

}  // namespace kalvon
