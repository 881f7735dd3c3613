"""The pipes between the places. "Rehden<" is the inlet of a compressor station, "Rehden>" its outlet."""

# One route a line: its stops, diameter in mm and, where more than one pipe lies in the trench, how many.
ROUTES = (
    # North Sea coast and Ems
    ("Dornum Aurich Emden", 800), ("Emden Folmhusen<", 900), ("Aurich Folmhusen<", 800), ("Wilhelmshaven Etzel", 900),
    ("Etzel Aurich", 800), ("Wilhelmshaven Oldenburg", 900), ("Etzel Oldenburg", 800), ("Oldenburg Huntorf Bremen", 700),
    ("Oldenburg Cloppenburg Rehden<", 1100), ("Bremen Rehden<", 700), ("Cuxhaven Bremerhaven Bremen", 400),
    ("Cuxhaven Stade", 400), ("Stade Zeven Holtum<", 800), ("Zeven Bremen", 600), ("Bremen Holtum<", 700),
    ("Folmhusen> Papenburg Meppen Lingen Rheine", 900, 2), ("Lingen Nordhorn", 300), ("Rheine Osnabrück", 500),
    ("Rheine Epe", 800), ("Rheine Münster", 900),
    # Schleswig-Holstein and Hamburg
    ("Ellund Flensburg", 300), ("Ellund Schleswig Rendsburg Quarnstedt<", 800),
    ("Schleswig Husum Heide Brunsbüttel", 500), ("Brunsbüttel Stade", 700), ("Brunsbüttel Quarnstedt<", 500),
    ("Rendsburg Kiel Neumünster Quarnstedt<", 400), ("Quarnstedt> Hamburg", 800), ("Hamburg Lübeck Wismar Rostock", 600),
    ("Puttgarden Lübeck", 500), ("Hamburg Lüneburg Uelzen Celle Hannover", 600),
    # Baltic coast and Brandenburg
    ("Wismar Schwerin Wittenberge Stendal Magdeburg", 600), ("Lubmin Stralsund Rostock", 600), ("Mukran Stralsund", 500),
    ("Lubmin Demmin Neubrandenburg Neuruppin Potsdam", 800), ("Demmin Rostock", 400),
    ("Lubmin Pasewalk Angermünde Bernau Berlin", 1000), ("Angermünde Schwedt", 500),
    ("Bernau Frankfurt_Oder Eisenhüttenstadt Cottbus", 700), ("Berlin Radeland<", 900), ("Potsdam Radeland<", 700),
    ("Radeland> Riesa Dresden Freiberg", 700), ("Radeland> Wittenberg Bitterfeld Leipzig", 800), ("Cottbus Bautzen", 500),
    ("Dresden Bautzen Görlitz", 500),
    # Lower Saxony and Saxony-Anhalt
    ("Holtum> Nienburg Hannover", 800), ("Rehden> Minden Bielefeld Paderborn", 800), ("Minden Hannover", 800),
    ("Rehden> Osnabrück Münster", 700), ("Hannover Braunschweig Magdeburg", 700), ("Braunschweig Wolfsburg Stendal", 400),
    ("Hannover Hildesheim Göttingen Kassel", 800), ("Hildesheim Salzgitter Halberstadt Bernburg", 600),
    ("Braunschweig Salzgitter", 500), ("Magdeburg Staßfurt Bernburg Halle", 600),
    ("Göttingen Nordhausen Bad_Lauchstädt", 500),
    # Central Germany
    ("Bad_Lauchstädt Halle", 600), ("Bad_Lauchstädt Leuna", 800), ("Bitterfeld Halle", 500), ("Leuna Leipzig", 600),
    ("Leipzig Riesa", 400), ("Leipzig Altenburg", 600), ("Leuna Erfurt Eisenach Reckrod<", 700),
    ("Altenburg Chemnitz", 500), ("Chemnitz Freiberg Deutschneudorf", 700), ("Altenburg Rückersdorf<", 700),
    ("Rückersdorf> Plauen Hof Bayreuth", 700), ("Rückersdorf> Gera Jena Erfurt", 400),
    ("Erfurt Suhl Coburg Bamberg", 300),
    # Rhine, Ruhr and Westphalia
    ("Vreden Epe", 700), ("Vreden Marl", 700), ("Epe Marl", 800), ("Elten Wesel", 900, 2), ("Wesel Marl", 700),
    ("Wesel Duisburg", 900), ("Duisburg Essen Marl", 600), ("Duisburg Düsseldorf Köln", 800), ("Duisburg Krefeld", 600),
    ("Krefeld Mönchengladbach Stolberg<", 600), ("Eynatten Stolberg<", 1000), ("Stolberg> Euskirchen Koblenz", 800),
    ("Euskirchen Köln", 600), ("Köln Bonn Koblenz", 500), ("Euskirchen Bitburg Trier", 500), ("Marl Werne<", 800),
    ("Münster Werne<", 900), ("Werne> Dortmund Hagen Siegen Gießen", 900), ("Hagen Düsseldorf", 400),
    ("Werne> Soest Paderborn Kassel", 800),
    # Hesse, Palatinate and Saar
    ("Kassel Reckrod<", 800), ("Kassel Marburg Gießen", 400), ("Gießen Frankfurt", 800),
    ("Reckrod> Fulda Schweinfurt", 900), ("Fulda Aschaffenburg", 500), ("Frankfurt Aschaffenburg Rimpar<", 600),
    ("Koblenz Mainz Gernsheim<", 700), ("Frankfurt Mainz", 500), ("Frankfurt Darmstadt Gernsheim<", 700),
    ("Gernsheim> Mannheim", 900), ("Mannheim Ludwigshafen", 700), ("Medelsheim Mittelbrunn<", 900),
    ("Medelsheim Saarbrücken Dillingen Trier", 600), ("Mittelbrunn> Kaiserslautern Ludwigshafen", 800),
    ("Mittelbrunn> Karlsruhe", 800),
    # Baden-Württemberg
    ("Mannheim Karlsruhe", 600), ("Karlsruhe Offenburg Freiburg", 700), ("Freiburg Lörrach Waldshut Singen", 400),
    ("Mannheim Heilbronn Stuttgart", 700), ("Karlsruhe Pforzheim Stuttgart", 700), ("Stuttgart Ulm", 700),
    ("Stuttgart Rottweil Singen Ravensburg", 400), ("Offenburg Rottweil", 300), ("Ulm Ravensburg Lindau", 400),
    ("Ansbach Aalen Ulm", 600),
    # Bavaria
    ("Schweinfurt Rimpar<", 700), ("Schweinfurt Bamberg Nürnberg", 600), ("Rimpar> Würzburg Ansbach Nürnberg", 700),
    ("Würzburg Heilbronn", 400), ("Bayreuth Nürnberg", 700), ("Bayreuth Weiden", 500), ("Waidhaus Weiden Nürnberg", 800),
    ("Weiden Regensburg", 800), ("Nürnberg Ingolstadt München", 800), ("Regensburg Ingolstadt", 600),
    ("Regensburg Deggendorf Passau", 400), ("Regensburg Landshut Wurmsham<", 700), ("Landshut München", 500),
    ("Wurmsham> Burghausen", 600), ("Passau Burghausen", 300), ("Burghausen Freilassing Rosenheim München", 400),
    ("Ulm Augsburg München", 600), ("Ulm Memmingen Kempten Lindau", 400), ("Ingolstadt Augsburg", 500),
    ("München Garmisch", 300),
)

# Interconnections that a valve keeps shut in normal operation: (valve at, far end, diameter in mm)
CLOSED_LINKS = (("Hamburg", "Stade", 600), ("Siegen", "Köln", 500))


def pipes():
    """Yields (from, to, diameter, number of pipes side by side) of every hop."""
    for route in ROUTES:
        stops = route[0].split()
        for hop in zip(stops, stops[1:]):
            yield (*hop, route[1], route[2] if len(route) > 2 else 1)
