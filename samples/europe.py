"""What the sample map shows: its window on the globe, its Regions and Areas, its links by sea."""

WIDTH, HEIGHT = 546, 308        # the backdrop box, pixels
WEST, NORTH = -17.0, 65.3       # longitude and latitude at the picture's top left corner
SCALE = 8.5                     # pixels for a degree of latitude
TRUE_LATITUDE = 33              # where a degree of longitude has its true length
MARGIN = 6                      # what lies outside the picture is pulled onto a frame this far out
TOLERANCE = 1.0                 # pixels that a simplified outline may stray
SMALLEST_RING = 16              # square pixels; smaller islands are left out
SHORTEST_BORDER = 5             # border pixels that make two Areas neighbours
MARKER_WIDTH, MARKER_HEIGHT = 32, 16

HEADER = "Europe and the Mediterranean"
TIME_STAMP = "11-24-2026 12:00:00"
PLAYER_COLOURS = "0,256,0,256,0,0,256,256,0,125,125,125"
TEMPLATE_MARKER = "0,6,60"
BLACK, SEA, BEYOND = (0, 0, 0), (176, 208, 236), (226, 224, 216)

# Region            armies  text on black    land             marker    Areas: name and countries
REGIONS = [
    ("The Isles",        3, (120, 200, 255), (196, 214, 180), (4, 36), [
        ("Ireland",          ["Ireland"]),
        ("Scotland",         []),
        ("England",          ["United Kingdom"])]),
    ("Scandinavia",      4, (200, 160, 255), (214, 200, 232), (104, 8), [
        ("Denmark",          ["Denmark"]),
        ("Norway",           ["Norway"]),
        ("Sweden",           ["Sweden"]),
        ("Finland",          ["Finland", "Åland"])]),
    ("Latin West",       5, (255, 170, 80), (248, 214, 170), (8, 160), [
        ("Portugal",         ["Portugal"]),
        ("Spain",            ["Spain"]),
        ("Île-de-France",    ["France", "Monaco", "Andorra"]),
        ("Provence",         []),
        ("Lombardy",         ["Italy", "San Marino", "Vatican"]),
        ("Naples",           [])]),
    ("Central Europe",   6, (255, 255, 96), (246, 240, 176), (200, 79), [
        ("Low Countries",    ["Netherlands", "Belgium", "Luxembourg"]),
        ("Germany",          ["Germany"]),
        ("Poland",           ["Poland"]),
        ("Bohemia",          ["Czechia", "Slovakia"]),
        ("The Alps",         ["Switzerland", "Austria", "Liechtenstein"]),
        ("Hungary",          ["Hungary"])]),
    ("The Balkans",      4, (255, 130, 170), (244, 200, 204), (336, 183), [
        ("Illyria",          ["Slovenia", "Croatia", "Bosnia and Herz."]),
        ("Serbia",           ["Serbia", "Kosovo", "Montenegro", "Macedonia", "Albania"]),
        ("Romania",          ["Romania", "Moldova"]),
        ("Bulgaria",         ["Bulgaria"]),
        ("Greece",           ["Greece"])]),
    ("Eastern Plains",   7, (110, 240, 130), (204, 228, 196), (420, 4), [
        ("Baltic",           ["Estonia", "Latvia", "Lithuania"]),
        ("Belarus",          ["Belarus"]),
        ("Ukraine",          ["Ukraine"]),
        ("Novgorod",         []),
        ("Muscovy",          ["Russia"]),
        ("Volga",            [])]),
    ("Near East",        6, (255, 110, 80), (236, 220, 196), (296, 264), [
        ("Anatolia",         ["Turkey"]),
        ("Transcaucasia",    ["Georgia", "Armenia", "Azerbaijan"]),
        ("Syria",            ["Syria"]),
        ("Levant",           ["Lebanon", "Israel", "Palestine", "Jordan", "Cyprus", "N. Cyprus"]),
        ("Mesopotamia",      ["Iraq", "Kuwait"]),
        ("Persia",           ["Iran"]),
        ("Arabia",           ["Saudi Arabia"])]),
    ("North Africa",     2, (90, 230, 230), (250, 228, 150), (203, 256), [
        ("Morocco",          ["Morocco", "W. Sahara"]),
        ("Algeria",          ["Algeria"]),
        ("Tunisia",          ["Tunisia"]),
        ("Libya",            ["Libya"]),
        ("Egypt",            ["Egypt"])]),
]

LANDS_BEYOND = ["Iceland", "Kazakhstan", "Uzbekistan", "Turkmenistan"]  # drawn, but no Areas

# A polygon that belongs to another Area than the rest of its country.
MOVED = [  # country, a place in the polygon, Area
    ("United Kingdom", (-6.7, 54.6), "Ireland"),
    ("Russia", (21.3, 54.7), "Baltic"),
    ("Russia", (34.3, 45.3), "Ukraine"),
]

# A line through the largest polygon of an Area; the part that holds the place is a new Area.
CUTS = [  # Area, new Area, a place in it, the line
    ("England", "Scotland", (-4.2, 57.0), [(-3.1, 55.0), (-2.4, 55.5), (-2.0, 55.8)]),
    ("Île-de-France", "Provence", (2.5, 44.5),
     [(-2.2, 47.2), (0.6, 47.3), (2.8, 46.6), (4.6, 46.9), (6.3, 46.6)]),
    ("Lombardy", "Naples", (15.5, 41.0), [(10.1, 44.0), (11.3, 44.1), (12.6, 44.0)]),
    ("Muscovy", "Novgorod", (35.0, 62.0),
     [(30.0, 56.3), (33.5, 57.0), (38.0, 59.0), (45.0, 60.0), (62.0, 63.0)]),
    ("Muscovy", "Volga", (46.0, 48.0),
     [(38.5, 49.9), (42.0, 51.5), (45.5, 53.5), (48.5, 55.5), (54.0, 57.0), (68.0, 58.0)]),
]

SEA_LINKS = [
    ("Ireland", "England"), ("Ireland", "Scotland"), ("England", "Île-de-France"),
    ("England", "Low Countries"), ("Scotland", "Norway"), ("Denmark", "Sweden"),
    ("Denmark", "Norway"), ("Sweden", "Finland"), ("Finland", "Baltic"),
    ("Spain", "Morocco"), ("Naples", "Tunisia"), ("Naples", "Greece"),
    ("Greece", "Anatolia"), ("Bulgaria", "Anatolia"), ("Egypt", "Levant"),
]

AREA_NAMES = [name for *_, areas in REGIONS for name, _ in areas]
AREA_REGION = [r for r, (*_, areas) in enumerate(REGIONS, 1) for _ in areas]
