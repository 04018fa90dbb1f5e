// More regions, provinces and towns, by continent.

#include <iterator>

#include "elements/title/names.h"

namespace quorvel::titlenames {

// clang-format off
const WordList kRegions[] = {
    // Provinces, regions and towns of Europe.
    {u"Aberdeen Alsace Andalusia Anjou Antwerp Aquitaine Aragon Ardennes Asturias Athens Auvergne Avignon Basel "
     u"Basque Bavaria Belfast Bergen Bern Birmingham Bologna Bonn Bosnia Brabant Brandenburg Bremen Breslau "
     u"Bristol Brittany Bucharest Budapest Burgundy Calabria Carpathian Carpathians Castile Catalan Catalonia "
     u"Caucasus Cheshire Coimbra Connacht Copenhagen Cordoba Corfu Cornwall Corsica Coventry Crete Crimea "
     u"Cumbria Cyprus Córdoba Dalmatia Danzig Devon Donbas Donetsk Dorset Dresden Dublin Dundee Durham "
     u"Edinburgh Essex Extremadura Ferrara Flanders Florence Franconia Frankfurt Friuli Galicia Gascony Genoa "
     u"Glasgow Gloucestershire Granada Guernsey Hamburg Hampshire Hanover Heidelberg Helsinki Hertfordshire "
     u"Iberia Iberian Iceland Istria Kent Kiev Kosovo Kyiv Lancashire Languedoc Leipzig Leuven Lille "
     u"Lincolnshire Lisbon Livonia Lombardy Lorraine Lusatia Lyon Lyons Madeira Madrid Malaga Malta Manchester "
     u"Mantua Marseille Marseilles Milan Minsk Modena Moldavia Montenegro Moravia Munich Münster Naples Navarre "
     u"Newcastle Normandy Northamptonshire Nottingham Nuremberg Oslo Padua Palermo Paris Pavia Picardy Piedmont "
     u"Poitou Pomerania Prague Pristina Provence Provençal Ravenna Rhineland Rotterdam Rouen Ruthenia Salamanca "
     u"Salonica Salzburg Sarajevo Sardinia Saxony Scandinavia Seville Sheffield Shropshire Sicily Silesia "
     u"Slavonia Sofia Srebrenica Stockholm Strasbourg Stuttgart Suffolk Surrey Sussex Swabia Thessaloniki "
     u"Thuringia Toledo Toulouse Transylvania Trieste Turin Tuscany Tyneside Tyrone Ulster Utrecht Venice "
     u"Verona Vichy Vienna Vilnius Volga Walachia Wales Wallachia Wallonia Warsaw Wiltshire Yorkshire Zagreb "
     u"Zurich Zürich"},
    // Of Asia, Africa and the Pacific.
    {u"Abuja Abyssinia Accra Aceh Aden Aleppo Algiers Anatolia Andaman Angkor Ankara Annam Arakan Assam Awadh "
     u"Baghdad Bali Balinese Balochistan Baluchistan Banda Bandung Bangkok Basra Beijing Beirut Bengal Bengali "
     u"Benin Biafra Bihar Bombay Borneo Buganda Bukhara Bulawayo Burma Cairo Calcutta Cantonese Casablanca "
     u"Chengdu Chennai Chiapas Chongqing Cochin Congo Cyrenaica Dahomey Damascus Darfur Deccan Delhi Dhaka "
     u"Djibouti Durban Eritrea Ethiopia Fiji Fujian Gansu Gaza Guam Gujarat Haifa Hanoi Hebei Hebron Hejaz "
     u"Herat Hokkaido Hyderabad Ifugao Isfahan Istanbul Java Javanese Jerusalem Jiangnan Jiangxi Johannesburg "
     u"Kabul Kano Karachi Kashmir Katanga Kathmandu Kerala Kivu Kobe Kurdistan Kyoto Ladakh Lagos Lahore Levant "
     u"Levantine Lucknow Madras Maharashtra Malabar Malacca Malay Malaya Manchuria Manila Maratha Mecca Medina "
     u"Melanesia Melanesian Melbourne Micronesia Mindanao Mombasa Mumbai Nagoya Nairobi Najaf Namibia Nanjing "
     u"Nanking Nepal Ningbo Nubia Nubian Odisha Orissa Oromo Palau Penang Polynesia Polynesian Pune "
     u"Punjab Rabat Rakhine Rhodesia Rwanda Ryukyu Saigon Samarkand Samoa Samoan Sarawak Senegambia Seoul "
     u"Shaanxi Shandong Shanghai Shanxi Siam Siberia Siberian Sinai Sindh Sokoto Soweto Sulawesi Sumatra Suzhou "
     u"Sydney Taipei Tamil Tanganyika Tasmania Tehran Timbuktu Timor Tokyo Tonkin Transkei Transvaal Travancore "
     u"Tripoli Vanuatu Xinjiang Yogyakarta Zambezi Zanzibar Zhejiang"},
    // Of the Americas.
    {u"Acadia Acadian Alabama Amazonia Andean Andes Antilles Antioquia Appalachia Appalachian Arizona Arkansas "
     u"Atlanta Austin Bahamas Bahia Baltimore Barbados Belize Belém Berkeley Bermuda Bogota Bogotá Boise "
     u"Bolivia Boston Bronx Brooklyn Cajamarca Calgary Cali Caracas Caribbean Carolina Carolinas Carolinian "
     u"Chesapeake Chicago Cincinnati Cleveland Coahuila Colorado Connecticut Cuzco Dakota Dallas Denver Detroit "
     u"Edmonton Flatbush Florida Fresno Grenada Guadeloupe Guantánamo Guatemala Guyana Haiti Harlem Hartford "
     u"Havana Hawai'i Hawaii Hispaniola Houston Idaho Illinois Indianapolis Iowa Jamaica Kansas Kentucky "
     u"Knoxville Labrador Laredo Lima Louisiana Louisville Lowell Managua Manhattan Manitoba Martinique "
     u"Maryland Massachusetts Mexico Miami Michigan Michoacán Milwaukee Minneapolis Minnesota Mississippi "
     u"Missouri Montana Montgomery Montreal Morelos Nashville Navajo Nebraska Nevada Newfoundland Nicaragua "
     u"Nunavut Oakland Oaxaca Ohio Oklahoma Ontario Oregon Orinoco Ottawa Ozark Ozarks Paraguay Patagonia "
     u"Pennsylvania Pernambuco Philadelphia Phoenix Pittsburgh Potosí Princeton Puebla Quebec Québec Raleigh "
     u"Recife Richmond Sacramento Saskatchewan Seattle Sinaloa Sonora Springfield Surinam Suriname Syracuse "
     u"Tallahassee Tennessee Texas Tlaxcala Toronto Trinidad Tuskegee Utah Vancouver Vermont Virginia "
     u"Washington Wichita Winnipeg Wisconsin Wyoming Yellowstone Yosemite Zacatecas"},
};
// clang-format on
const std::size_t kRegionsCount = std::size(kRegions);

}  // namespace quorvel::titlenames
