#include "core/places_tables.h"

namespace quillmark::places {

namespace {

// clang-format off
constexpr PlaceRow kDistricts[] = {
    // town              places, the town's own name left out
    {"Ashford",          "ashford lake, lake chaffee, warrenville, west ashford, westford"},
    {"Avon",             "lakeview, pond place, west avon"},
    {"Barkhamsted",      "barkhamsted center, center hill, riverton"},
    {"Beacon Falls",     "pines bridge"},
    {"Berlin",           "east berlin, kensington"},
    {"Bethany",          "bethany wood"},
    {"Bethel",           "grassy plain, plumtrees, stony hill, wolfpits"},
    {"Bethlehem",        "crane hollow, devils backbone, guilds hollow, hard hill, kasson grove, "
                         "magnolia hill, munger lane, nonnewaug falls, paddy hollows, porter hill, "
                         "still hill, todd hill, tousey mountain, wood creek"},
    {"Bloomfield",       "north bloomfield"},
    {"Bolton",           "birch mountain, bolton notch, quarryville, south bolton"},
    {"Bozrah",           "bashan hill, bozrah street, fitchville, gilman, spicer hill, wawecus hill"},
    {"Branford",         "branford center, branford hills, branford point, brocketts point, brushy plain, "
                         "clam island, double beach, goodsell point, granite bay, haycock point, "
                         "high island, hotchkiss grove, indian neck, jepson island, johnsons point, "
                         "kidds island, killams point, lamphiers cove, little pumpkin island, money island, "
                         "pawson park, potato island, rockland park, sagamore cove, scotch cap, "
                         "short beach, stony creek, sumac island, summer island, sunset beach, "
                         "thimble island, todds hill, vedders point, wheeler island"},
    {"Bridgewater",      "bridgewater center, hat shop hill, lake lillinonah, mallett district"},
    {"Bristol",          "east bristol, edgewood, fall mountain, forestville, lake compounce, polksville"},
    {"Brookfield",       "brookfield center, brookfield junction, candlewood lake east, candlewood shores, "
                         "east iron works, huckleberry hill, iron works, long meadow hill, obtuse, "
                         "pokono ridge, prospect hill, west iron works, whisconier"},
    {"Brooklyn",         "allen hill, barrett hill, brooklyn center, east brooklyn, quebec, "
                         "stetsons four corners, tatnic hill, west village, west wauregan"},
    {"Burlington",       "burlington center, burlington station, case district, johnny cake, lake garda, "
                         "whigville"},
    {"Canaan",           "barrack mountain, beebe hill, canaan mountain, falls village, huntsville, "
                         "lime rock station, lower city, music mountain, south canaan"},
    {"Canterbury",       "canterbury green, canterbury plains, gayhead, hyde, north society, packerville, "
                         "south canterbury, westminster"},
    {"Canton",           "canton center, canton valley, canton village, cherry brook, collinsville, "
                         "dowds corner, east hill, north canton"},
    {"Chaplin",          "bedlam, chaplin center, chewink, natchaug, shermans corner, south chaplin"},
    {"Cheshire",         "brooksvale, cheshire heights, copper valley, ives corner, mixville, moss farm, "
                         "summit, west cheshire"},
    {"Chester",          "parkers point, wig hill"},
    {"Clinton",          "beach park, boulder lake, clinton beach, cow hill, duck hole, grove beach manor, "
                         "kelseytown, lochwood, mill district, old harbor village, ridgewood, silver bluff"},
    {"Colchester",       "north westchester, westchester"},
    {"Colebrook",        "colebrook river, mill brook, north colebrook, robertsville"},
    {"Columbia",         "hop river"},
    {"Cornwall",         "cornwall bridge, cornwall center, cornwall hollow, cornwall plains, cream hill, "
                         "dibble hill, dudleytown, east cornwall, golds mill, johnson hollow, mohawk tower, "
                         "north cornwall, puffingham, west cornwall, whitcomb hill"},
    {"Coventry",         "coventry lake, south coventry"},
    {"Cromwell",         "north cromwell"},
    {"Danbury",          "beaver brook, becketville, candlewood lake, carneys crossing, germantown, "
                         "great plain, hayestown, kenosia, middle river, mill plain, miry brook, padanaram, "
                         "pembroke, shelter knolls, stadley rough, starrs plain, wooster village"},
    {"Darien",           "brush island, butlers island, contentment island, hay island, long neck point, "
                         "nash island, noroton, noroton bay, noroton heights, noroton knoll, noroton manor, "
                         "pratt island, ridge acres, salem straits, scotts cove, tokeneke"},
    {"Deep River",       "winthrop"},
    {"Derby",            "burtville, camptown, derby neck, east derby, sentinel hill"},
    {"Durham",           "durham center, reeds gap"},
    {"East Haddam",      "bashan, devils hopyard, east haddam landing, foxtown, haywardville, johnsonville, "
                         "lake hayward, leesville, little haddam, millington, moodus, moodus estates, "
                         "moodus lake shores, north plain, salmon river, sunset acres, tater hill"},
    {"East Hampton",     "cobalt, comstock bridge, hurd park, lake pocotopaug, meshomasic forest, "
                         "middle haddam, pocotopaug lake, salmon river park, sears park, the mines"},
    {"East Hartford",    "burnham, burnside, hillstown, hockanum"},
    {"East Haven",       "foxon, momauguin"},
    {"East Lyme",        "attawan beach, black point, crescent beach, flanders village, giants neck beach, "
                         "giants neck heights, golden spur, niantic, oak grove beach, old black point, "
                         "saunders point"},
    {"East Windsor",     "broad brook, melrose, scantic, warehouse point, windsorville"},
    {"Eastford",         "north ashford, phoenixville"},
    {"Easton",           "sport hill"},
    {"Ellington",        "cider mill heights, equivalent, frog hollow, jobs hill, lake bonair, longview, "
                         "rock-ell, sadds mill, sand hill, windermere village, woodside acres"},
    {"Enfield",          "crescent lake, green manorville, hazardville, north thompsonville, scitico, "
                         "shaker pines lake, sherwood manor, southwood acres, thompsonville"},
    {"Essex",            "centerbrook, essex harbor, essex village, ivoryton"},
    {"Fairfield",        "grasmere, greenfield hill, southport, stratfield"},
    {"Farmington",       "farmington village, oakland gardens, scotts swamp, unionville, west district"},
    {"Franklin",         "ayers gap, birch heights, blue hill, cooley hill, crocker hill, franklin hill, "
                         "hydes corner, meeting house hill, north franklin, pautipaug, peck hollow, "
                         "pleasure hill, skyline acres, smiths corner"},
    {"Glastonbury",      "addison, bell town, bidwell town, buckingham, bucks corners, cotton hollow, "
                         "diamond lake, east glastonbury, eastbury, glastonbury center, hopewell, "
                         "john tom hill, matson hill, naubuc, nayaug, nipsic, shingle hollow, "
                         "south glastonbury, taylor town, wassuc"},
    {"Goshen",           "north goshen, tyler lake, west goshen, woodridge lake"},
    {"Granby",           "lost acres, north granby, salmon brook, west granby"},
    {"Greenwich",        "banksville, byram, chickahominy, cos cob, east stanwich, glenville, mianus, "
                         "north greenwich, north mianus, old greenwich, pemberwick, riversville, "
                         "sound beach, stanwich"},
    {"Griswold",         "doaneville, glasgo, jewett city, pachaug"},
    {"Groton",           "bluff point, burnetts corner, center groton, conning towers nautilus park, "
                         "eastern point, esker point, groton city, groton heights, groton long point, "
                         "jupiter point, mumford cove, noank, old mystic, poquonock bridge, west mystic, "
                         "west pleasant valley"},
    {"Guilford",         "guilford lakes, indian cove, leetes island, north guilford, nut plains, "
                         "old quarry, sachems head"},
    {"Haddam",           "beaver meadow, candlewood hill, haddam neck, hidden lake, higganum, ponset, "
                         "shailerville, tylerville"},
    {"Hamden",           "centerville, highwood, mount carmel, spring glen, whitneyville"},
    {"Hampton",          "clarks corner, hampton springs, howard valley, north bigelow, rawson, "
                         "south bigelow"},
    {"Hartford",         "cedar hill, charter oak terrace, parkville"},
    {"Hartland",         "east hartland, west hartland"},
    {"Harwinton",        "center, lake harwinton, northwest harwinton, poverty hollow, scoville hill"},
    {"Hebron",           "amston"},
    {"Kent",             "bromica, bulls bridge, east kent, flat rocks, geer mountain, kent furnace, "
                         "macedonia, north kent, schaghticoke, skiff mountain, south kent, treasure hill"},
    {"Killingly",        "attawaugan, ballouville, danielson, dayville, east killingly, elmville, goodyear, "
                         "killingly center, pineville, rogers, south killingly"},
    {"Killingworth",     "alders bridge, bear swamp, bunker hill, burr hill, cedar swamp, cow pen hill, "
                         "dogwood knoll, fox village, hemlock heights, indian springs, lane district, "
                         "ninevah falls, old mine hill, parker hill, pea hill, roast meat hill, "
                         "southwest district, stone house, stonehill acres, wolf meadow"},
    {"Lebanon",          "babcock hill, coreyville, exeter, goshen hill, kick hill, lebanon village, "
                         "leonard bridge, liberty hill, mason hill, standish hill"},
    {"Ledyard",          "aljen heights, barrett park, christy hill estates, colonial manor, "
                         "cranwood homestead, devonshire estates, ferry view heights, gales ferry, "
                         "glenwoods, highlands, lantern hill, ledyard center, ledyard village, long pond, "
                         "mashantucket, parsonage hill manor, pheasant run, presidential estates, "
                         "quaker town, sherwood forest, stonehenge, woodridge estates"},
    {"Lisbon",           "blissville, bundy hill, ethel acres, graham terrace, lisbon heights, newent, "
                         "ross hill, sylvandale, tunnel hill"},
    {"Litchfield",       "bantam, bantam terrace, beach street, east chestnut hill, east litchfield, "
                         "flutesville, forge hollow, gilbert corners, guernsey hill, harris plains, "
                         "headquarters, marne park, milton, northfield, roosevelt park, south plains, "
                         "west bantam, whites woods"},
    {"Lyme",             "becket hill, bill hill, brockways ferry, elys ferry, gungy, hadlyme, hamburg, "
                         "joshuatown, lord hill, mount archer, north lyme, old hamburg, "
                         "rogers lake west shores, sterling city"},
    {"Madison",          "east river, hammonasset, north madison, rockland"},
    {"Manchester",       "buckland, highland park, hilliardville, lydallville, manchester green, oakland, "
                         "orford village, parker village"},
    {"Mansfield",        "atwoodville, chaffeeville, conantville, eagleville, gurleyville, hanks hill, "
                         "mansfield center, mansfield city, mansfield depot, mansfield four corners, "
                         "mansfield hollow, merrow, mount hope, perkins corner, storrs, wormwood hill"},
    {"Marlborough",      "terramuggus"},
    {"Meriden",          "east meriden, south meriden"},
    {"Middlebury",       "bradleyville, oronoke"},
    {"Middlefield",      "baileyville, lake beseck, middlefield center, powder hill, rockfall"},
    {"Middletown",       "highland, westfield"},
    {"Milford",          "anchor beach, bayview, bayview heights, burwells beach, cedar beach, devon, "
                         "ettadore park, far view beach, fort trumbull beach, gulf beach, laurel beach, "
                         "merwins beach, merwins point, milford point, morningside, myrtle beach, "
                         "naugatuck gardens, point lookout, pond point beach, rivercliff, silver beach, "
                         "walnut beach, wheeler farms, wildermere beach, woodmont"},
    {"Monroe",           "east village, stepney, stevenson, upper stepney"},
    {"Montville",        "chapel hill, chesterfield, haughton cove, haughton park, holly hill, kitemaug, "
                         "massapeag, mohegan, montville center, montville manor, oakdale, oakdale heights, "
                         "oxoboxo lake, oxoboxo river, palmertown, raymond hill, uncasville"},
    {"Morris",           "deer island, east morris, west morris"},
    {"Naugatuck",        "bristol terrace, indian hills, millville, straitsville, tigertown, union city"},
    {"New Canaan",       "clapboard hill, oenoke ridge, ponus ridge, smith ridge, talmadge hill"},
    {"New Fairfield",    "ball pond, bogus hill, candlewood hills, candlewood isle, candlewood knolls, "
                         "hillyview drive, inglenook development, joyce hill, lavelle avenue"},
    {"New Hartford",     "bakersville, cotton hill, holcomb hill, maple hollow, nepaug, "
                         "new hartford center, pine meadow, puddletow, satans kingdom"},
    {"New Haven",        "fair haven, morris cove, newhallville, westville"},
    {"New London",       "bates woods park, fort trumbull, glenwood park, greens harbor beach, "
                         "mitchells woods, ocean beach, riverside park"},
    {"New Milford",      "avery heights, berkshires, birch groves, blue bonnet knoll, boardman manor, "
                         "boardmans bridge, bonny brook, brookrun, camelot estates, candleset cove, "
                         "candlewood heights, candlewood point, candlewood springs, candlewood terrace, "
                         "candlewood trails, cedar knolls, chestnut land, crestwood, dean heights, "
                         "ferriss estates, gaylordsville, haviland heights, hill and plain, hilltop view, "
                         "hunt, indian ridge, lanesville, lone oak, long mountain, lower merryall, "
                         "meadow ridge, merryall, merwinsville, millstone ridge, mountain view terrace, "
                         "new milford heights, northville, palomino estates, park lane, park lane acres, "
                         "pickett, pleasant view, prospect district, pumpkin hill, raleigh estates, "
                         "russeling ridge, second hill, sega acres, south kent road, squash hollow, "
                         "still river, stilson heights, sunny valley road, taylor terrace, upper merryall, "
                         "waller, wellsville, westernview, woodview"},
    {"Newington",        "elm hill, maple hill, newington junction, newington park, north newington, "
                         "northeast, seymour park"},
    {"Newtown",          "berkshire, botsford, dodgingtown, hattertown, hawleyville, head of meadow, "
                         "huntingtown, lands end, middle gate, newtown borough, palestine, rocky glen, "
                         "sandy hook, taunton, walnut tree hill, zoar"},
    {"Norfolk",          "north norfolk, south norfolk, west norfolk"},
    {"North Branford",   "northford, totoket"},
    {"North Canaan",     "canaan valley, canaan village, east canaan, greenacres"},
    {"North Haven",      "augerville, clintonville, montowese"},
    {"North Stonington", "ashwillett, boom bridge, cedar ridge, clark falls, kingswood, laurel glen, "
                         "meadow wood, northwest corner, shunoc"},
    {"Norwalk",          "bell island, broad river, comstock hill, cranbury, east norwalk, five mile river, "
                         "flax hill, manresa island, pine point, roton point, rowayton, sasqua hills, "
                         "south norwalk, spring wood, tavern island, village creek, west norwalk, "
                         "wilson point, winnipauk"},
    {"Norwich",          "bean hill, cambridge estates, chase manor, east great plain, franklin square, "
                         "greenville, kennedy heights, laurel park, little valley, melrose park, "
                         "nordon village, norwich falls, norwichtown, oakland heights, oakwood knoll, "
                         "occum, ox hill, plain hill, pleasant view heights, pleasure valley, salem park, "
                         "schwartz manor, taftville, thamesville, union square, washington square, "
                         "wauwecus hill, westwood park, yantic"},
    {"Old Lyme",         "between the rivers, black hall, black hall pond, brighton beach, edge lea, "
                         "ferry road, flat rock hill, four mile river, griswold point, halls corners, "
                         "hatchetts point, hawks nest beach, homestead circle, johnnycake hill, laysville, "
                         "miami beach, mile creek, neck road, old colony beach, old lyme estates, "
                         "old lyme shores, point o'woods, rogers lake, sill lane, smiths neck, sound view, "
                         "south lyme, tantummaheag, whippoorwill, white sand beach"},
    {"Old Saybrook",     "ayers point, chalker beach, cornfield point, fenwick, fenwood, ferry point, "
                         "floral park, forest glen, great hammock, knollwood beach, otter cove, "
                         "oyster river, plum bank, saybrook ferry, saybrook manor, saybrook manor beach, "
                         "saybrook point"},
    {"Orange",           "indian hill, tyler city"},
    {"Oxford",           "bee mountain, bowers hill, cedar lane, charter oak, chestnut hill manor, "
                         "chestnut tree hill, eastview acres, governors hill, hogs back, hulls hill, "
                         "hunters mountain, jacks hill, jacksons cove, moose hill, oak hill estates, "
                         "pisgah mountain, quaker farms, red city, rock house hill, towantic, "
                         "westview acres, zoar bridge"},
    {"Plainfield",       "aldrich heights, almyville, black hill, bradford hill, cemetery road, "
                         "central village, cranska village, flat rock, goshen road, green hollow road, "
                         "kennedy city, kishwaukee, lillibridge road, moosup, new village, old village, "
                         "pacherville, pickett road, plainfield village, sunny brook park, wauregan"},
    {"Plymouth",         "allentown, east plymouth, fall mountain lake, greystone, hancock, holt district, "
                         "lake plymouth, mount tobe, pequabuck, terryville, todd hollow, tolles, "
                         "tolles station"},
    {"Pomfret",          "abington, abington four corners, elliott, pomfret center, pomfret landing, "
                         "pomfret station"},
    {"Portland",         "gildersleeve, great hill lake, jobs pond, meshomasic, pecausett, penfield hill, "
                         "stewart hill, wangunk"},
    {"Preston",          "hallville, long society, poquetanuck, preston city, preston plains"},
    {"Putnam",           "east putnam, gary, putnam heights, rhodesville, sawyer, west putnam"},
    {"Redding",          "aspetuck valley, diamond hill, foundry, gallows hill, glen, hull, limekiln, "
                         "little boston, little york, lonetown, north park avenue, picketts ridge, "
                         "putnam park, redding center, redding ridge, sanfordtown, sunset hill, topstone, "
                         "umpawaug, west redding"},
    {"Ridgefield",       "branchville, titicus, west lane, west mountain, whipstick"},
    {"Roxbury",          "chalybes, cross brook, flag swamp, judds bridge, moosehorn, painter hill, "
                         "roxbury falls, roxbury station, tophet, warners mills"},
    {"Salem",            "fairy lake, harris, harris lake, horse pond, minnie island, mountain lake, "
                         "music vale, pogwank, rathbun hill, rattle snake ledge, salem four corners, "
                         "white birch, witch meadow"},
    {"Salisbury",        "amesville, joyceville, lakeville, lime rock, taconic, twin lakes"},
    {"Seymour",          "bungay, cedar ridge district, clifton, garden city, promise land, skokorat, "
                         "squantuck"},
    {"Sharon",           "amenia union, calkinstown, ellsworth, mitchelltown, sharon valley, silver lake, "
                         "west woods, white hollow"},
    {"Shelton",          "huntington, huntington center, pine rock park, white hills"},
    {"Sherman",          "briggs hill, camp aquila, candlewood lake estates, coburn, deer run shores, "
                         "green pond, holiday point, leach hollow, mauweehoo hill, north end, spring lake, "
                         "timber trails"},
    {"Simsbury",         "hoskins, simsbury center, tariffville, weatogue, west simsbury"},
    {"Somers",           "north somers, somersville"},
    {"South Windsor",    "barber hill, dart hill, east windsor hill, mth. of scantic, podunk, stone quarry, "
                         "vinton mills, wapping"},
    {"Southbury",        "berkshire estates, cedar land, cedarland, churaevka village, heritage circle, "
                         "heritage crest, heritage village, kettletown, oakdale manor, south britain, "
                         "southford, white oaks"},
    {"Southington",      "marion, milldale, plantsville"},
    {"Sprague",          "baltic, hanover, versailles"},
    {"Stafford",         "baptist hill, colburn hill, cooper lane, crow hill, davis district, ellithorpe, "
                         "ellithorpes crossing, furnace hollow, glynville, hall, hyde park, hydeville, "
                         "keefe plains, lake stafford, land o'pines, new city, orcuttville, patten, "
                         "pinney hill, rockwell hill, rocky dundee, stafford hollow, stafford springs, "
                         "stafford village, staffordville, state line, washburn, webber, west stafford, "
                         "works"},
    {"Stamford",         "bangall, belltown, bulls head, caritas island, cove island, cummings point, "
                         "davenport point, glenbrook, glendale park, high ridge, hunting ridge, "
                         "lockwoods corners, north stamford, overbrook, palmers hill, rippowam village, "
                         "riverbank, scofieldtown, shippan point, southfield point, springdale, stillwater, "
                         "turn of river, vidal park, wallacks point, waterside, west park, west stamford, "
                         "westover park"},
    {"Sterling",         "ekonk, north sterling, oneco, sterling center, sterling hill"},
    {"Stonington",       "andrews island, anguilla, anguilla acres, blueberry, brookside, castle hill, "
                         "clarks village, clarksville, dean mills, downerville, grand view park, "
                         "greenhaven shores, greenmanville, hinckley hill, ledward island, lords point, "
                         "lower pawcatuck, masons island, mystic island, oak hill gardens, "
                         "olde mistick village, oxecosset, pawcatuck, pequotsepos, quaketaug hill, "
                         "quiambaug, ram island, road church district, seaport heights, shawondassee, "
                         "solomonville, stillmanville, stonington borough, taugwonk, the highlands, "
                         "vargas corners, wamphassuc point, wequetequock, wolf neck"},
    {"Stratford",        "lordship, oronoque, paradise green, putney"},
    {"Suffield",         "suffield depot, west suffield"},
    {"Thomaston",        "reynolds bridge"},
    {"Thompson",         "brandy hill, east thompson, fabyan, grosvenordale, north grosvenordale, "
                         "porter plains, quaddick, quinebaug, west thompson, wilsonville"},
    {"Torrington",       "burrville, drakeville, hart hollow, newbury corners, torringford, "
                         "west torrington, wrightville"},
    {"Trumbull",         "nichols, tashua"},
    {"Union",            "breakneck, east district, kinney hollow, mashapaug, rock meadow"},
    {"Vernon",           "dobsonville, hartford turnpike, ogdens corner, pillsbury hill, rockville, "
                         "talcottville, tankeroosen, vernon center"},
    {"Voluntown",        "beach pond, campbells mills, ekonk hill, village, wylie"},
    {"Wallingford",      "east wallingford, tracy, yalesville"},
    {"Washington",       "blackville, calhoun street, church hill, marbledale, nettleton hollow, "
                         "new preston, new preston hills, romford, waramaug lake, washington depot, "
                         "woodville"},
    {"Waterbury",        "waterville"},
    {"Waterford",        "bartlett point, best view, cohanzie, dufree hill, east neck, fog plain, "
                         "graniteville, great neck, harrisons landing, jordan, lakes pond, logger hill, "
                         "mago point, magonk, millstone, morningside park, mullen hill, oswegatchie, "
                         "pepper box road, pleasure beach, quaker hill, ridgewood park, riverside beach, "
                         "spithead, strand, thames view, west neck"},
    {"Watertown",        "oakville, rockdale"},
    {"West Hartford",    "bishops corner"},
    {"West Haven",       "allingtown, savin rock, west shore"},
    {"Westbrook",        "chapman beach, coral sands, grove beach point, grove beach terrace, horse hill, "
                         "island view, kelsey point, little standard beach, middle beach, pilots point, "
                         "pointina, quotonset beach, sagamore terrace, salt works, stannard beach, "
                         "west beach"},
    {"Weston",           "devils den, lyons plains, norfield, upper parish, valley forge"},
    {"Westport",         "compo, greens farms, saugatuck"},
    {"Wethersfield",     "griswoldville, old wethersfield, orchard village, pyquag village, timber village, "
                         "wells quarter village, wyndwood"},
    {"Willington",       "daleville, east willington, glass factory, moose meadow, potter, roaring brook, "
                         "south willington, west willington"},
    {"Wilton",           "cannondale, north wilton, south wilton"},
    {"Winchester",       "colebrook station, danbury quarter, mooreville, smith hill, sucker brook, "
                         "winchester center, winsted"},
    {"Windham",          "north windham, south windham, willimantic, windham center"},
    {"Windsor",          "deerfield, hayden station, poquonock, rainbow, wilson"},
    {"Wolcott",          "bald hill, beacon hill, hitchcock lakes, spindle hill, wolf hill, woodtick"},
    {"Woodbury",         "cat swamp, hazel plain, hotchkissville, middle quarter, minortown, "
                         "mount woodbury, neufa, nonnewaug, north woodbury, pomperaug, puckshire, "
                         "quassapaug, sherman hill, transylvania, weekeepeemee, woodlake"},
    {"Woodstock",        "east woodstock, english neighborhood, harrisville, kenyonville, new sweden, "
                         "north woodstock, red-white district, south woodstock, west woodstock, "
                         "woodstock valley"},
};

constexpr std::string_view kAmbiguous =
    "aspetuck, bear hill, bigelow, black rock, blue hills, brush hill, bush hill, campville, carmel hill, "
    "cedar lake, center district, cherry hill, chestnut hill, chippens hill, cook hill, crystal lake, "
    "elmwood, flanders, fort hill, gardner lake, georgetown, gilead, good hill, goshen, grassy hill, "
    "great hill, grove beach, hall meadow, harbor view, hopeville, indian town, kent hollow, knollcrest, "
    "knollwood, lakeside, laurel hill, leffingwell, long hill, long ridge, meadowbrook, mechanicsville, "
    "mine hill, mystic, newfield, ore hill, pendleton hill, pine grove, pine orchard, pleasant valley, "
    "pond hill road, pond meadow, quaker ridge, quinnipiac, ratlum, ridgebury, riverside, riverview, "
    "rose hill, round hill, roxbury, scott hill, secret lake, silvermine, sodom, spring hill, "
    "tobys rock mountain, tower hill, town hill, trading cove, turkey hill, tuttles sandy beach, "
    "union district, union village, village hill, wallens hill, washington hill, west hill, west side";
// clang-format on

}  // namespace

std::span<const PlaceRow> DistrictRows() {
    return kDistricts;
}

std::string_view AmbiguousPlaces() {
    return kAmbiguous;
}

}  // namespace quillmark::places
