"""The places of the network and what happens at them. Positions are longitude and latitude in degrees."""

PLACES = {
    # North Sea coast and Ems
    "Emden": (7.206, 53.367), "Dornum": (7.43, 53.65), "Aurich": (7.48, 53.47), "Wilhelmshaven": (8.10, 53.53),
    "Etzel": (7.90, 53.45), "Oldenburg": (8.21, 53.14), "Huntorf": (8.40, 53.19), "Bremen": (8.80, 53.08),
    "Bremerhaven": (8.58, 53.55), "Cuxhaven": (8.69, 53.86), "Stade": (9.48, 53.60), "Zeven": (9.28, 53.30),
    "Papenburg": (7.39, 53.08), "Cloppenburg": (8.04, 52.85), "Meppen": (7.29, 52.69), "Lingen": (7.32, 52.52),
    "Nordhorn": (7.07, 52.43), "Rheine": (7.44, 52.28), "Osnabrück": (8.05, 52.28),
    # Schleswig-Holstein and Hamburg
    "Ellund": (9.31, 54.80), "Flensburg": (9.44, 54.78), "Schleswig": (9.56, 54.52), "Husum": (9.05, 54.48),
    "Heide": (9.09, 54.20), "Brunsbüttel": (9.14, 53.90), "Rendsburg": (9.66, 54.30), "Kiel": (10.13, 54.32),
    "Neumünster": (9.98, 54.07), "Hamburg": (9.99, 53.55), "Lübeck": (10.69, 53.87), "Lüneburg": (10.41, 53.25),
    "Uelzen": (10.56, 52.97), "Puttgarden": (11.22, 54.50),
    # Baltic coast and Brandenburg
    "Wismar": (11.46, 53.89), "Schwerin": (11.41, 53.63), "Rostock": (12.10, 54.09), "Stralsund": (13.08, 54.31),
    "Mukran": (13.58, 54.48), "Lubmin": (13.62, 54.14), "Demmin": (13.04, 53.91), "Neubrandenburg": (13.26, 53.56),
    "Pasewalk": (13.99, 53.51), "Angermünde": (14.00, 53.01), "Schwedt": (14.28, 53.06), "Wittenberge": (11.75, 53.00),
    "Neuruppin": (12.80, 52.92), "Bernau": (13.59, 52.68), "Berlin": (13.40, 52.52), "Potsdam": (13.06, 52.40),
    "Frankfurt_Oder": (14.55, 52.34), "Eisenhüttenstadt": (14.63, 52.15), "Cottbus": (14.33, 51.76),
    # Lower Saxony and Saxony-Anhalt
    "Nienburg": (9.21, 52.64), "Celle": (10.08, 52.62), "Hannover": (9.73, 52.37), "Minden": (8.92, 52.29),
    "Hildesheim": (9.95, 52.15), "Salzgitter": (10.40, 52.15), "Braunschweig": (10.52, 52.27),
    "Wolfsburg": (10.78, 52.42), "Stendal": (11.86, 52.60), "Magdeburg": (11.63, 52.12), "Staßfurt": (11.58, 51.86),
    "Halberstadt": (11.05, 51.90), "Göttingen": (9.93, 51.53), "Nordhausen": (10.79, 51.50),
    # Central Germany
    "Bernburg": (11.74, 51.80), "Halle": (11.97, 51.48), "Bad_Lauchstädt": (11.87, 51.39), "Leuna": (12.01, 51.32),
    "Leipzig": (12.37, 51.34), "Bitterfeld": (12.32, 51.62), "Wittenberg": (12.64, 51.87), "Riesa": (13.29, 51.31),
    "Dresden": (13.74, 51.05), "Bautzen": (14.42, 51.18), "Görlitz": (14.98, 51.15), "Freiberg": (13.34, 50.92),
    "Deutschneudorf": (13.46, 50.60), "Chemnitz": (12.92, 50.83), "Altenburg": (12.43, 50.99), "Gera": (12.08, 50.88),
    "Jena": (11.59, 50.93), "Erfurt": (11.03, 50.98), "Eisenach": (10.32, 50.98), "Plauen": (12.13, 50.50),
    "Hof": (11.92, 50.31), "Suhl": (10.69, 50.61), "Coburg": (10.96, 50.26),
    # Rhine, Ruhr and Westphalia
    "Elten": (6.17, 51.86), "Vreden": (6.83, 52.04), "Epe": (7.00, 52.18), "Münster": (7.63, 51.96),
    "Wesel": (6.62, 51.66), "Marl": (7.09, 51.66), "Duisburg": (6.76, 51.43), "Essen": (7.01, 51.46),
    "Dortmund": (7.47, 51.51), "Hagen": (7.47, 51.36), "Krefeld": (6.56, 51.33), "Düsseldorf": (6.78, 51.23),
    "Mönchengladbach": (6.44, 51.19), "Köln": (6.96, 50.94), "Bonn": (7.10, 50.73), "Euskirchen": (6.79, 50.66),
    "Eynatten": (6.10, 50.69), "Bielefeld": (8.53, 52.02), "Paderborn": (8.75, 51.72), "Soest": (8.11, 51.57),
    "Siegen": (8.02, 50.87), "Koblenz": (7.60, 50.36), "Bitburg": (6.53, 49.97), "Trier": (6.64, 49.75),
    # Hesse, Palatinate and Saar
    "Kassel": (9.48, 51.32), "Marburg": (8.77, 50.80), "Gießen": (8.68, 50.58), "Fulda": (9.68, 50.55),
    "Frankfurt": (8.68, 50.11), "Aschaffenburg": (9.15, 49.98), "Mainz": (8.25, 50.00), "Darmstadt": (8.65, 49.87),
    "Mannheim": (8.47, 49.49), "Ludwigshafen": (8.40, 49.48), "Kaiserslautern": (7.77, 49.44),
    "Saarbrücken": (7.00, 49.24), "Dillingen": (6.73, 49.36), "Medelsheim": (7.27, 49.15),
    # Baden-Württemberg
    "Karlsruhe": (8.40, 49.01), "Heilbronn": (9.22, 49.14), "Pforzheim": (8.70, 48.89), "Stuttgart": (9.18, 48.78),
    "Offenburg": (7.95, 48.47), "Freiburg": (7.85, 48.00), "Lörrach": (7.66, 47.61), "Waldshut": (8.21, 47.62),
    "Singen": (8.84, 47.76), "Rottweil": (8.62, 48.17), "Ulm": (9.99, 48.40), "Aalen": (10.09, 48.84),
    "Ravensburg": (9.61, 47.78), "Lindau": (9.69, 47.55),
    # Bavaria
    "Schweinfurt": (10.23, 50.05), "Würzburg": (9.93, 49.79), "Bamberg": (10.89, 49.89), "Bayreuth": (11.58, 49.95),
    "Weiden": (12.16, 49.68), "Waidhaus": (12.50, 49.64), "Nürnberg": (11.08, 49.45), "Ansbach": (10.57, 49.30),
    "Regensburg": (12.10, 49.02), "Deggendorf": (12.96, 48.83), "Passau": (13.46, 48.57), "Landshut": (12.15, 48.54),
    "Ingolstadt": (11.43, 48.77), "Augsburg": (10.89, 48.37), "München": (11.58, 48.14), "Burghausen": (12.83, 48.17),
    "Rosenheim": (12.13, 47.86), "Freilassing": (12.98, 47.84), "Garmisch": (11.10, 47.49), "Kempten": (10.32, 47.73),
    "Memmingen": (10.18, 47.98),
}

# place: (injection in kg/s at the winter peak, kind of entry). The reference pressure holds at Etzel.
ENTRIES = {
    "Emden": (52, "import"), "Dornum": (38, "import"), "Wilhelmshaven": (64, "terminal"), "Stade": (23, "terminal"),
    "Brunsbüttel": (23, "terminal"), "Ellund": (49, "import"), "Lubmin": (84, "import"), "Elten": (58, "import"),
    "Vreden": (29, "import"), "Eynatten": (54, "import"), "Medelsheim": (62, "import"), "Waidhaus": (58, "import"),
    "Deutschneudorf": (35, "import"), "Heide": (12, "electrolysis"), "Cuxhaven": (10, "electrolysis"),
    "Rostock": (13, "electrolysis"), "Mukran": (12, "electrolysis"), "Puttgarden": (9, "electrolysis"),
    "Lingen": (7, "electrolysis"), "Wittenberge": (6, "electrolysis"),
}
REFERENCE_NODE = "Etzel"

# place: share of what the caverns together give or take
STORAGES = {"Etzel": 0.28, "Huntorf": 0.14, "Epe": 0.26, "Bad_Lauchstädt": 0.20, "Staßfurt": 0.12}

# place: offtake in kg/s at the winter peak
CITIES = {
    "Oldenburg": 4.0, "Bremerhaven": 2.9, "Papenburg": 1.4, "Cloppenburg": 1.6, "Osnabrück": 4.7, "Nordhorn": 1.6,
    "Flensburg": 2.3, "Husum": 0.9, "Kiel": 5.8, "Neumünster": 2.2, "Lübeck": 5.0, "Lüneburg": 2.2, "Uelzen": 1.1,
    "Schwerin": 2.5, "Wismar": 1.3, "Stralsund": 1.4, "Neubrandenburg": 1.8, "Neuruppin": 1.1, "Potsdam": 4.3,
    "Frankfurt_Oder": 2.2, "Cottbus": 3.2, "Nienburg": 1.1, "Celle": 2.0, "Minden": 2.3, "Hildesheim": 2.9,
    "Braunschweig": 5.4, "Magdeburg": 5.4, "Stendal": 1.3, "Göttingen": 3.2, "Nordhausen": 1.4, "Halle": 5.0,
    "Bautzen": 1.4, "Görlitz": 1.8, "Freiberg": 1.4, "Chemnitz": 5.0, "Gera": 2.3, "Jena": 2.9, "Erfurt": 4.7,
    "Eisenach": 1.4, "Plauen": 1.8, "Hof": 1.8, "Suhl": 1.3, "Coburg": 1.6, "Münster": 5.8, "Hagen": 4.7, "Krefeld": 5.4,
    "Düsseldorf": 9.9, "Mönchengladbach": 5.0, "Bonn": 6.1, "Bielefeld": 6.1, "Paderborn": 3.2, "Soest": 1.8,
    "Siegen": 2.7, "Koblenz": 3.2, "Trier": 2.5, "Kassel": 4.7, "Marburg": 1.8, "Gießen": 2.5, "Fulda": 2.2,
    "Aschaffenburg": 2.5, "Mainz": 5.8, "Darmstadt": 4.0, "Mannheim": 7.2, "Kaiserslautern": 2.5, "Saarbrücken": 4.7,
    "Karlsruhe": 7.2, "Heilbronn": 4.0, "Pforzheim": 2.9, "Offenburg": 2.2, "Freiburg": 5.4, "Lörrach": 2.2,
    "Waldshut": 1.1, "Singen": 1.8, "Rottweil": 1.6, "Ulm": 4.3, "Aalen": 1.8, "Ravensburg": 2.0, "Lindau": 1.3,
    "Schweinfurt": 2.9, "Würzburg": 3.6, "Bamberg": 2.5, "Bayreuth": 2.2, "Weiden": 1.4, "Ansbach": 1.4,
    "Regensburg": 4.7, "Deggendorf": 1.3, "Passau": 1.8, "Landshut": 2.3, "Augsburg": 7.2, "Rosenheim": 2.5,
    "Garmisch": 0.9, "Kempten": 1.8, "Memmingen": 1.6,
}

# Steel, chemistry, refineries and power stations: offtake in kg/s at the winter peak
INDUSTRIES = {
    "Stade": 10.8, "Brunsbüttel": 9.0, "Bremen": 19.8, "Hamburg": 16.2, "Schwedt": 16.2, "Eisenhüttenstadt": 19.8,
    "Salzgitter": 28.8, "Wolfsburg": 7.2, "Leuna": 27.0, "Bitterfeld": 9.0, "Riesa": 7.2, "Duisburg": 54.0, "Marl": 21.6,
    "Essen": 9.0, "Köln": 25.2, "Dillingen": 19.8, "Ludwigshafen": 36.0, "Ingolstadt": 18.0, "Burghausen": 18.0,
    "Freilassing": 3.6,
}

# place: (offtake of the city itself, its neighbours as (town, lon, lat, offtake in kg/s, fed from)); "" is the city
REGIONS = {
    "Hamburg": (13.3, (("Harburg", 9.98, 53.43, 6.1, ""),)),
    "Bremen": (6.1, (("Delmenhorst", 8.62, 53.05, 4.0, ""),)),
    "Berlin": (20.9, (("Spandau", 13.20, 52.54, 7.2, ""),)),
    "Hannover": (11.2, ()),
    "Leipzig": (10.1, ()),
    "Dresden": (8.7, (("Radebeul", 13.65, 51.11, 2.9, ""),)),
    "Dortmund": (10.8, (("Bochum", 7.22, 51.48, 7.2, ""),)),
    "Köln": (9.0, (("Leverkusen", 6.99, 51.03, 5.8, ""),)),
    "Frankfurt": (13.3, ()),
    "Stuttgart": (8.1, (("Ludwigsburg", 9.19, 48.90, 4.7, ""), ("Esslingen", 9.31, 48.74, 4.0, ""),
                  ("Göppingen", 9.65, 48.70, 2.5, "Esslingen"))),
    "Nürnberg": (10.5, ()),
    "München": (16.9, (("Freising", 11.75, 48.40, 3.6, ""),)),
}

# name: (lon, lat, number of machines, drive, discharge pressure aimed at in bar at the winter peak)
STATIONS = {
    "Quarnstedt": (9.78, 53.96, 1, "electric", 78.0),
    "Folmhusen": (7.48, 53.19, 2, "turbine", 80.0),
    "Rehden": (8.48, 52.61, 2, "turbine", 80.0),
    "Holtum": (9.27, 52.96, 1, "electric", 76.0),
    "Werne": (7.63, 51.66, 2, "electric", 78.0),
    "Radeland": (13.48, 52.03, 2, "electric", 78.0),
    "Stolberg": (6.23, 50.78, 1, "electric", 78.0),
    "Reckrod": (9.76, 50.76, 2, "electric", 78.0),
    "Rückersdorf": (12.22, 50.80, 1, "electric", 76.0),
    "Mittelbrunn": (7.55, 49.37, 2, "turbine", 78.0),
    "Gernsheim": (8.49, 49.75, 1, "electric", 76.0),
    "Rimpar": (9.95, 49.86, 1, "electric", 76.0),
    "Wurmsham": (12.33, 48.33, 1, "turbine", 70.0),
}

# What a reader sees first; x and y follow from the position of the text's centre.
TEXTS = {
    "T_Title": (6.55, 55.02, "DE_H2: a fictional hydrogen grid", "Arial,16,-1,5,75,0,0,0,0,0", "#1b3a57"),
    "T_North_Sea": (6.75, 54.15, "North Sea coast", "Arial,11,-1,5,50,1,0,0,0,0", "#2a6f97"),
    "T_Baltic": (11.9, 54.75, "Baltic coast", "Arial,11,-1,5,50,1,0,0,0,0", "#2a6f97"),
    "T_Ruhr": (5.85, 51.45, "Ruhr", "Arial,11,-1,5,50,1,0,0,0,0", "#5c5c5c"),
    "T_Rhine": (7.2, 50.02, "Rhine", "Arial,11,-1,5,50,1,0,0,0,0", "#5c5c5c"),
    "T_Central": (10.4, 51.26, "Central Germany", "Arial,11,-1,5,50,1,0,0,0,0", "#5c5c5c"),
    "T_Bavaria": (12.75, 48.50, "Bavaria", "Arial,11,-1,5,50,1,0,0,0,0", "#5c5c5c"),
}
