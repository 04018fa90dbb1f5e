// Genera and larger groups of plants, animals and microbes that titles speak of.

#include <iterator>

#include "elements/title/names.h"

namespace quorvel::titlenames {

// clang-format off
const WordList kGenera[] = {
    // Genera, families, orders.
    {u"Abies Acanthamoeba Acer Acinetobacter Acipenser Acropora Actinobacillus Actinobacteria Actinomyces Agaricus "
     u"Agrobacterium Agrostis Alnus Amaranthus Amblyomma Ambystoma Amphibia Anolis Anura Apis Aplysia Arachis "
     u"Araneae Ardipithecus Artemia Artemisia Arthropoda Asteraceae Atta Avena Aves Azotobacter Babesia Bacteroides "
     u"Bartonella Bemisia Betula Bifidobacterium Biomphalaria Blattella Bombus Bombyx Botrytis Brachypodium "
     u"Bradyrhizobium Brassica Brassicaceae Brugia Burkholderia Calluna Canis Carex Castanea Cebus Centaurea "
     u"Ceratitis Cetacea Chironomus Chiroptera Chlamydomonas Chordata Citrobacter Cnidaria Coccidioides Coleoptera "
     u"Columba Compositae Copepoda Corvus Corynebacterium Coxiella Crassostrea Crustacea Cryptococcus Culex "
     u"Culicoides Cynodon Cyprinus Daphnia Decapoda Deinococcus Dendroctonus Dictyostelium Diptera Echinococcus "
     u"Echinodermata Entamoeba Enterobacteriaceae Equus Erysiphe Eschericha Eubacterium Fabaceae Fagus Fasciola "
     u"Felis Festuca Ficedula Firmicutes Formica Francisella Fraxinus Fusarium Gadus Gallus Gammarus Gasterosteus "
     u"Gastropoda Geobacter Gossypium Gramineae Haematococcus Haemonchus Halobacterium Helianthus Helicoverpa "
     u"Hemiptera Hevea Histoplasma Hominidae Hordeum Hymenoptera Insecta Ipomoea Isopoda Isoptera Ixodes Juglans "
     u"Juniperus Lactococcus Larix Larus Leguminosae Lepidoptera Leptospira Leuconostoc Locusta Lolium Lutzomyia "
     u"Macaca Magnaporthe Malus Mammalia Manduca Megaptera Metarhizium Methanococcus Mimulus Mollusca Moraxella Mus "
     u"Musca Mytilus Myxococcus Naegleria Nematoda Nematostella Neurospora Nicotiana Nitrosomonas Nosema Nostoc "
     u"Odonata Oligochaeta Onchocerca Oncorhynchus Orchidaceae Orthoptera Oryctolagus Oryza Ovis Panthera "
     u"Paramecium Parus Passeriformes Pasteurella Penicillium Peromyscus Phanerochaete Phaseolus Phocoena Phytophthora "
     u"Picea Pichia Pinus Pisum Plantae Platyhelminthes Plutella Poaceae Poecilia Populus Porifera Porphyromonas "
     u"Prevotella Prochlorococcus Proteobacteria Proteus Prunus Pseudotsuga Puccinia Quercus Ralstonia Rattus "
     u"Reptilia Rhizobium Rhizoctonia Rhizopus Rhodobacter Rhodococcus Rodentia Rosaceae Rubus Rumex Saccharum "
     u"Salix Salvelinus Sciurus Sclerotinia Serratia Shewanella Silene Sinorhizobium Sitophilus Solanum Spartina "
     u"Sphagnum Spodoptera Sporothrix Stenotrophomonas Streptomyces Strongylocentrotus Strongyloides Sturnus "
     u"Sulfolobus Sus Synechococcus Synechocystis Taenia Taeniopygia Tardigrada Tetrahymena Theileria Thermus Tilia "
     u"Toxocara Tribolium Trichinella Trichoderma Trichuris Trifolium Triticum Turdus Tursiops Ulmus Ursus "
     u"Vaccinium Varroa Verticillium Vicia Vigna Vitis Vulpes Wolbachia Wuchereria Xanthomonas Xylella Yarrowia Zea "
     u"Zostera Zymoseptoria"},
};
// clang-format on
const std::size_t kGeneraCount = std::size(kGenera);

}  // namespace quorvel::titlenames
