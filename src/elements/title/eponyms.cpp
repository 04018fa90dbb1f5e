// Names of one word that titles of the sciences and the humanities speak of: eponyms, genera, authors, makes.

#include <iterator>

#include "elements/title/names.h"

namespace quorvel::titlenames {

// clang-format off
const WordList kEponyms[] = {
    // Medicine: diseases, signs, tests and operations.
    {u"Addison Aedes Akt Alport Alzheimer Anopheles Apgar Arabidopsis Asperger Babinski Bacillus Barre Barrett "
     u"Barré Basedow Bechterew Behcet Behçet Bethesda Bordetella Borrelia Botox Broca Brodmann Brucella Burkitt "
     u"Caenorhabditis Campylobacter Candida Chagas Charcot Chlamydia Clostridioides Clostridium Cochrane Covid "
     u"Creutzfeldt Crohn Cronbach Cryptosporidium Cushing Danlos Delphi Doppler Drosophila Duchenne Dupuytren "
     u"Ebola Ehlers Eisenmenger Ellison Enterobacter Enterococcus Epstein Escherichia Ewing Fabry Fallot "
     u"Fanconi Foley Framingham Fusobacterium Gaucher Gehrig Giardia Glasgow Golgi Guillain Haemophilus "
     u"Hashimoto Helicobacter Henoch Hirschsprung Hodgkin Horner Huntington Jakob Kaplan Kaposi Kawasaki "
     u"Klebsiella Klinefelter Korsakoff Krebs Kupffer Lactobacillus Langerhans Legionella Leishmania Lewy "
     u"Likert Listeria Lyme Marburg Marfan Mayo Meckel Medicaid Medicare Meier Merkel Mycobacterium Mycoplasma "
     u"Neisseria Nissen Noonan Obamacare Osgood OxyContin Paget Papanicolaou Parkinson Parkinsonian Pasteur "
     u"Peyronie Plasmodium Pneumocystis Pott Prader Prozac Pseudomonas Purkinje Raynaud Reiter Rett Reye "
     u"Rickettsia Rinne Ritalin Romberg Rorschach Roux Saccharomyces Sachs Salk Salmonella Schistosoma "
     u"Schlatter Schwann Schönlein Shigella Sjogren Sjögren Staphylococcus Stokes Streptococcus Sydenham "
     u"Takayasu Takotsubo Tay Tourette Toxoplasma Treponema Trichomonas Trypanosoma Turner Valium Viagra Vibrio "
     u"Waldenström Wegener Wernicke Whipple Willi Wilms Wnt Wolff Xenopus Yersinia Zeiss Zika Zollinger"},
    // Mathematics, statistics and computing.
    {u"Abel Abelian Airbnb Akaike Android Apollonius Archimedes Artin Banach Bayes Bayesian Bernoulli Bessel "
     u"Bezier Bigtable Birkhoff Bitcoin Bluetooth Boltzmann Bonferroni Boolean Borel Bourbaki Brouwer Brownian "
     u"Byzantine Bézier Calabi Cantor Cartesian Cauchy Cayley Chebyshev Cholesky Chomsky Cohen Collatz Coulomb "
     u"Cox Cramér Dedekind Delaunay Descartes Dijkstra Diophantine Dirichlet Docker Erdos Erdős Ethereum Euclid "
     u"Euclidean Euler Eulerian Facebook Fermat Feynman Fibonacci Flickr Fourier Frechet Fredholm Frobenius "
     u"Fréchet Gabor Galerkin Galois Gauss Gaussian Gibbs Gini GitHub Gmail Godel Goldbach Google Granger "
     u"Grassmann Grothendieck Gödel Hadamard Hadoop Hahn Hamilton Hamiltonian Hamming Haskell Hausdorff Hecke "
     u"Hermite Hermitian Hessian Hilbert Huffman Instagram Itô Jacobi Jacobian Java JavaScript Jordan Kalman "
     u"Kantorovich Kolmogorov Kronecker Krylov Kubernetes Kullback Kutta Kähler Lagrange Lagrangian Laplace "
     u"Laplacian Latin Lebesgue Legendre Leibler Leibniz Levenberg Lindelöf LinkedIn Linux Liouville Lipschitz "
     u"Lisp Lyapunov Mahalanobis Mandelbrot Mann MapReduce Markov Markovian Marquardt Matlab Mellin Mersenne "
     u"Minecraft Minkowski Moebius Monte Morse Myspace Möbius Nash Navier Netflix Newton Newtonian Noether "
     u"Nyquist Occam Ockham OpenFlow Pareto Parseval Pascal Peano Pearson Penrose Picard Platonic Poincare "
     u"Poincaré Poisson Pontryagin Prolog Pythagoras Pythagorean Python Rademacher Ramanujan Ramsey Reddit "
     u"Riccati Ricci Riemann Riemannian Roch Runge Shannon Shapley Shor Siri Skolem Skype Snapchat Sobolev "
     u"Spearman Spotify Stackelberg Steiner Stieltjes Stirling Sylow Tarski Tauberian Taylor Teichmüller "
     u"TensorFlow TikTok Tikhonov Tukey Turing Twitter Uber Unix Venn Verilog Viterbi Voronoi Wald Walrasian "
     u"Weibull Weierstrass Weyl WhatsApp Whitney Wiener Wikipedia Wilcoxon Wishart Yahoo YouTube Zariski "
     u"Zermelo Zigbee Zipf"},
    // Physics, chemistry and the sky.
    {u"Aharonov Alder Ampère Anderson Andromeda Antarctic Apollo Avogadro Balmer Becquerel Bloch Bohm "
     u"Bohr Bosch Bose Bragg Brillouin Carnot Casimir Cassini Chandra Chandrasekhar Cherenkov Chernobyl "
     u"Châtelier Compton Cooper Copernican Copernicus Curie Dalton Darcy Debye Diels Dirac Einstein "
     u"Einsteinian Eötvös Fabry Faraday Fermi Fick Fischer Fokker Foucault Fraunhofer Fresnel Friedel Friedmann "
     u"Fukushima Galilean Galileo Gerlach Ginzburg Goldstone Grignard Haber Hawking Heisenberg Helmholtz Higgs "
     u"Hubble Huygens Ising Jahn Jones Josephson Joule Jupiter Kelvin Kepler Kerr Kondo Kuiper Landau Langevin "
     u"Langmuir Larmor Laue Lavoisier Lennard Lorentz Lorentzian Luttinger Mach Magellan Magellanic Majorana "
     u"Mars Maxwell Maxwellian Meissner Mendeleev Michelson Mie Milankovitch Morley Mott Mössbauer Navier "
     u"Neptune Nernst Nordström Néel Ohm Oort Oppenheimer Pauli Peierls Peltier Perot Planck Pluto Podolsky "
     u"Poiseuille Prandtl Ptolemaic Ptolemy Raman Rayleigh Reissner Reynolds Rosen Rutherford Rydberg Saturn "
     u"Schottky Schrodinger Schrödinger Schwarzschild Seebeck Sputnik Stefan Suzuki Talbot Teller Tesla Thomson "
     u"Townsend Tropsch Tycho Uranus Venus Voyager Wigner Yang Yukawa Zeeman Zeno"},
    // Psychology, economics, law and society.
    {u"Adler Adlerian Adorno Agamben Allport Arendt Aristotelian Aristotle Asch Ayer Baddeley Badiou Bakhtin "
     u"Bandura Barthes Bataille Baudrillard Beauvoir Benjamin Bentham Bergson Binet Bion Bismarck Bonaparte "
     u"Bourdieu Bowlby Braudel Brentano Briggs Bronfenbrenner Buber Burkean Butler Calhoun Carnap Castro "
     u"Cattell Chevron Churchill Chávez Clausewitz Clinton Coase Cournot Darwin Darwinian Davidson Deleuze "
     u"Dennett Derrida Derridean Dewey Dilthey Durkheim Dworkin Ebbinghaus Eisenhower Engels Erie Erikson "
     u"Eysenck Fanon Feyerabend Fichte Flynn Fordism Fordist Foucauldian Frege Freire Freud Freudian Friedman "
     u"Gadamer Galbraith Galton Gandhi Gettier Giddens Goffman Gorbachev Gramsci Guattari Habermas Hayek Hebb "
     u"Hebbian Hegel Hegelian Heidegger Heider Herder Hicks Hitler Hobbes Hobbesian Holmes Hume Humean Husserl "
     u"Hymes Irigaray Jacksonian James Jefferson Jeffersonian Jung Jungian Kahneman Kant Kantian Kelsen Kennedy "
     u"Keynes Keynesian Kierkegaard Klein Kleinian Kohlberg Kohut Kripke Kristeva Kuhn Kuhnian Kuznets Lacan "
     u"Lacanian Lakatos Latour Lefebvre Lenin Levinas Levinasian Lewin Lincoln Lochner Locke Lockean Luhmann "
     u"Lukács Luria Luxemburg Lyotard Lévi Machiavelli Machiavellian Madison Malthus Malthusian Mandela Mao "
     u"Marbury Marcuse Marshallian Marx Marxian Maslow Mauss Mengele Merleau Merton Milgram Minsky Miranda "
     u"Modigliani Montaigne Montesquieu Montessori Moore Mussolini Myers Napoleon Nasser Nehru Nietzsche "
     u"Nietzschean Nixon Nozick Nussbaum Obama Ostrom Parsons Pavlov Pavlovian Peirce Peronism Peronist Perón "
     u"Phillips Piaget Piagetian Pigou Pigouvian Pinochet Plato Polanyi Ponty Popper Popperian Posner Putin "
     u"Pygmalion Quine Ranke Rawls Rawlsian Reagan Ricardian Ricardo Ricoeur Robespierre Roe Rogerian Rogers "
     u"Roosevelt Rorty Rousseau Russell Ryle Sartre Saussure Schmitt Schopenhauer Schumpeter Schumpeterian "
     u"Searle Seligman Simmel Skinner Skinnerian Smith Solow Sorel Spencer Spinoza Spivak Sraffa Stalin "
     u"Stanford Strauss Stroop Taft Taylorism Thatcher Tobin Tocqueville Toulmin Toyota Trotsky Truman Trump "
     u"Veblen Vico Voltaire Vygotskian Vygotsky Wallerstein Weber Weberian Wechsler Westphalian Winnicott "
     u"Wittgenstein Wittgensteinian Wundt Zizek Žižek"},
    // Literature, art, music and antiquity.
    {u"Achebe Achilles Aegean Aeneid Aeschylus Afroasiatic Agincourt Alcott Antietam Antigone Apuleius Aquinas "
     u"Ariosto Assyrian Attica Atwood Auden Augustan Augustine Augustinian Auschwitz Austen Austronesian Aztec "
     u"Babylonian Bach Balzac Bantu Barbie Batman Baudelaire Bauhaus Beatles Beckett Beethoven Behn Bellow "
     u"Beowulf Blake Bloomsbury Boccaccio Bollywood Borges Botticelli Brahms Brecht Brechtian Broadway Bronte "
     u"Brontë Brontës Browning Bruegel Brueghel Bundestag Bunyan Burney Byron Byronic Byzantium Caesar Caliban "
     u"Calvino Camus Caravaggio Carlyle Carthaginian Cather Catullus Cervantes Chartism Chartist Chartists "
     u"Chaucer Chaucerian Chekhov Chopin Cicero Ciceronian Coetzee Coleridge Comintern Confederacy Confederate "
     u"Congress Conrad Cowper Creole Cromwell Cromwellian Crusoe Cézanne Dada Dadaism Dadaist Dante Dantean "
     u"DeLillo Debussy Defoe Dickens Dickensian Dickinson Diderot Disney Disneyland Donne Dostoevsky "
     u"Dostoyevsky Dracula Dreiser Dryden Duma Dürer Eliot Ellison Emerson Emersonian Enron Equiano Etruscan "
     u"Euripides Faulkner Faulknerian Faust Fauvism Ferguson Fitzgerald Flaubert Forster Frankenstein "
     u"Gallipoli Gaskell Genet Gestapo Gettysburg Girondin Gissing Godzilla Goethe Gogol Goya Gulag Halley "
     u"Halliday Hamlet Handel Hansard Hardy Hawthorne Haydn Haymarket Hellenic Hellenistic Hemingway "
     u"Herculaneum Herodotus Hesiod Hiroshima Hitchcock Hollywood Homer Homeric Horace Hurston Iago Ibsen Iliad "
     u"Inca Ishiguro Jacobin Jacobins Jonson Joyce Joycean Juvenal Kafka Kafkaesque Katrina Keats Keatsian "
     u"Kipling Kremlin Kristallnacht Larkin Lawrence Lear Leonardo Lessing Livy Lucretius Luddite Luddites "
     u"Luftwaffe Macbeth Macedonian Maghreb Mahler Mallarmé Manet Mann Marlowe Marvell Matisse Mau Maya Mayan "
     u"McEwan Melville Mesoamerican Mesopotamian Michelangelo Middlemarch Milton Miltonic Molière Monet "
     u"Morrison Mozart Munch Nabokov Nagasaki Naipaul Ngugi Nineveh Nuremberg Odysseus Odyssey Oedipal Oedipus "
     u"Olmec Orpheus Orwell Orwellian Othello Oulipo Ovid Ovidian Pentagon Petrarch Petrarchan Picasso Pindar "
     u"Plath Plautus Plutarch Poe Politburo Pollock Pompeii Pre-Raphaelite Prometheus Prospero Proust Proustian "
     u"Pushkin Pynchon Rabelais Racine Raphael Rembrandt Rilke Rimbaud Rousseauian Rubens Rushdie Ruskin Sahel "
     u"Sappho Schiller Schubert Schumann Selma Seneca Shakespeare Shakespearean Shakespearian Shaw Shelley "
     u"Sidney Socrates Socratic Sophoclean Sophocles Soyinka Spenser Spenserian Stalingrad Stasi Stein "
     u"Steinbeck Stendhal Sterne Stevens Stoker Stonewall Stowe Stravinsky Superman Swiftian Tacitus Tarzan "
     u"Tennyson Thackeray Thermidor Thoreau Thucydides Tiananmen Titanic Titian Tolkien Tolstoy Tories Tory "
     u"Trafalgar Treblinka Trollope Turgenev Twain Ulysses Updike Vasari Vatican Verdi Verdun Vergil Vermeer "
     u"Versailles Virgil Virgilian Vonnegut Wagner Wagnerian Walpole Warhol Waterloo Wehrmacht Wharton Whig "
     u"Whigs Whitman Wollstonecraft Woodstock Woolf Wordsworth Wordsworthian Wyatt Xenophon Yalta Yeats Zola"},
};
// clang-format on
const std::size_t kEponymsCount = std::size(kEponyms);

}  // namespace quorvel::titlenames
