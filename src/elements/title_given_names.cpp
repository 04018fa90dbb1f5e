// Given names: the word behind one is a last name.

#include <iterator>

#include "elements/title_names.h"

namespace quorvel::titlenames {

// clang-format off
const WordList kMoreGivenNames[] = {
    // Given names, mostly of the last hundred years and of all continents.
    {u"Aaliyah Abdul Abdullah Abena Abigail Adam Adolf Adolfo Adriana Agatha Agnes Ahmad Ahmed Aisha Akira "
     u"Alain Alberto Aldo Alejandro Aleksandr Alessandro Alexis Alfonso Ali Alicia Alistair Amanda Amartya "
     u"Amelia Amir Amy Anastasia Andre Andrea Andrei Andy Angela Angelo Anita Ann Anna Anne Annie Antoine Anton "
     u"Antonia Antonin Anwar Arjun Arnold Arthur Arturo Ashley Asif Astrid Audre Augusto Aya Ayelet Barack "
     u"Barbara Bartolome Bartolomé Beatrice Beatrix Ben Bernard Bertolt Bertrand Beth Betsy Bettina Betty Boris "
     u"Brandon Brenda Brian Brigitte Bruce Bruno Camille Carla Carlos Carmen Caroline Carolyn Carrie Catherine "
     u"Cecil Cecilia Cesar Chang-rae Chantal Charlene Charlotte Chimamanda Chinua Christina Christine Christoph "
     u"Christopher Cindy Claire Clara Clarence Claude Claudia Claudio Clifford Clyde Colin Connie Cornelia "
     u"Cornelius Craig Cristina Cyril Czesław Daniela Darren Dave Deborah Debra Denise Dennis Derek Derrick "
     u"Desmond Diana Diane Diego Dietrich Dmitri Dolores Dominic Donald Donna Dora Doris Dorothea Doug Duncan "
     u"Dwight Eadweard Edgar Edith Edmund Edna Eduardo Edvard Edwin Eileen Elaine Eleanor Elena Eli Elias "
     u"Elijah Elinor Elisabeth Ella Ellen Elsa Emil Emile Emilia Emiliano Emilio Emily Enrico Enrique Ephraim "
     u"Eric Erica Erich Erik Ernest Ernesto Ernst Erwin Ethan Ethel Eudora Eugene Eugenia Eugène Eva Evelyn "
     u"Ezekiel Fatima Federico Felix Ferdinand Fernando Fidel Fiona Flannery Frances Francesca Francesco "
     u"Francisco Franco Frantz Franz François Françoise Fred Frederic Frederick Frida Friedrich Fritz Fyodor "
     u"Gabriel Gabriela Gabriele Gail Gary Gayatri Geoffrey Georg Georges Gerald Geraldine Gerard Gerhard "
     u"Germaine Gertrude Giacomo Gianni Gilbert Gina Giorgio Giovanni Giulia Giuseppe Gloria Gordon Graham Greg "
     u"Gregory Greta Guillermo Gustav Gustave Gwendolyn Günter Hamid Hans Harold Harriet Harry Haruki Hassan "
     u"Heidi Heinrich Helen Helena Helene Helmut Henri Henrietta Henrik Henrique Henry Herbert Herman Hermann "
     u"Hideo Hilary Hilda Hillary Hiroshi Howard Hubert Hugh Hugo Hugues Ian Ibrahim Ida Ignacio Igor Imre "
     u"Indira Ingrid Irene Irving Isaac Isabel Isabella Isaiah Italo Ivan Jacob Jacqueline Jacques Jamal Jan "
     u"Jane Janet Janice Jared Jason Javier Jawaharlal Jayne Jean Jeanne Jeff Jeffrey Jennifer Jenny Jeremy "
     u"Jerome Jesse Jessica Jhumpa Jim Jimmy Joan Joanna Joanne Joaquín Jodi Joe Joel Johan Johann Johannes "
     u"Jonas Jonathan Jorge Josef Joseph Josephine Joshua José Joyce João Juan Judith Judy Julia Julian Juliet "
     u"Justin Jürgen Kamala Karim Kazuo Keith Kelly Ken Kevin Kimberly Kimberlé Kofi Konrad Kristin Kwame Lajos "
     u"Lakisha Lars Lauren Leila Lena Leroy Leslie Lila Lillian Lisa Lloyd Lois Lorraine Lotte Luca Lucas Luce "
     u"Lucille Lucretia Luigi Luisa Lynn Mabel Mahmoud Maja Malala Marc Marcello Marcia Margarita Margery "
     u"Margot Marguerite Mariana Marianne Marina Marion Marjorie Mark Marlene Marsha Marta Marvin Marya "
     u"Mathilde Matteo Maud Maureen Maxine Maya Megan Mehmet Melanie Michele Michiko Milena Mina Mohamed "
     u"Mohammad Monique Murray Mustafa Myra Nadia Nadine Naomi Natalia Natalie Natasha Neil Nella Ngũgĩ Niall "
     u"Niels Nigel Nina Noel Norbert Norma Olaudah Olga Olivia Omar Ophelia Orhan Oswald Pamela Paolo Patrice "
     u"Patsy Paula Paulo Pedro Peggy Penelope Phil Phyllis Pietro Priscilla Priya Qasim Rabindranath Rafael Raj "
     u"Raúl Rebekah Regina Reinhard Reinhold Renata Ricardo Rigoberta Rita Robin Rodney Rodrigo Rohinton Romila "
     u"Ronan Rosemarie Ross Roxane Roy Rubén Russell Ryan Sabina Sadie Salvatore Sandro Sanjay Saskia Saul "
     u"Scott Seamus Sean Sergei Sergey Sergio Seyla Shane Shannon Sharon Sheila Shulamith Siegfried Sigrid "
     u"Sofia Sofie Solomon Srinivasa Stanislaw Stephanie Steve Subhas Suzan Sven Svetlana Ta-Nehisi Takashi "
     u"Tanya Tara Tariq Tatiana Ted Teresa Terry Thea Thelma Theo Theodora Thérèse Tim Tina Tobias Todd Tomás "
     u"Toussaint Tracy Umberto Upton Uwe Valentina Vikram Viktor Vincenzo Vivian Wallace Warren Wendell Wendy "
     u"Wilfred Wilhelmina Willard Willie Wole Xavier Yasmin Yasunari Yitzhak Yukio Yuri Yusuf Yvonne Zachary "
     u"Zygmunt Émile"},
};
// clang-format on
const std::size_t kMoreGivenNamesCount = std::size(kMoreGivenNames);

}  // namespace quorvel::titlenames
