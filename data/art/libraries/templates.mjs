// The templates: finished cards with a heading, and room for the rest.
import { bunting, colours as c, confetti, darker, dice, flower, heart, leaf, lighter, sprig, times, warm, sheet, script, small,
  dotted, upright, lying } from './tekenen.mjs';
import { bird, block, burst, canalHouse, cargoBike, cream, crown, cup, daffodil, dot, egg, eggClip, flute, gift, gold, grass,
  line, mirrored, mitre, orange, oval, place, rabbit, red, removalBox, schoolBag, shape, staff, steamer,
  tulip } from './motieven.mjs';
import { atticWares, basket, bouquet, brickFront, byNight, christmasTree, cloud, dandelion, deckChair, doughBalls, each,
  envelopeBack, envelopePocket, fields, hangingFlag, illBear, marketStall, parasol, quilt, rings, rules, seed, stork, strawHat,
  van, wreath } from './motieven-templates.mjs';

const wood = '#9a6b48';
const cakeCandle = (x, y, fill) => block(x - 5, y, 10, 36, fill, 2) +
  `<path d="M${x - 5} ${y + 12}L${x + 5} ${y + 6}M${x - 5} ${y + 24}L${x + 5} ${y + 18}" stroke="#fff" stroke-width="3"/>` +
  shape(`M${x} ${y - 20}C${x + 10} ${y - 8} ${x + 6} ${y} ${x} ${y}C${x - 6} ${y} ${x - 10} ${y - 8} ${x} ${y - 20}Z`, c.ochre) +
  shape(`M${x} ${y - 11}C${x + 5} ${y - 5} ${x + 3} ${y - 1} ${x} ${y - 1}` +
    `C${x - 3} ${y - 1} ${x - 5} ${y - 5} ${x} ${y - 11}Z`, '#fff6d8');
const icing = (x, y, width, fill) => shape(`M${x} ${y}H${x + width}V${y + 14}` +
  `${times(width / 24, (i) => `q-4 ${14 + (i % 2) * 8} -12 10t-12 -10`).join('')}Z`, fill);
const tier = (x, y, width, height, fill, top) => block(x, y, width, height, fill, 8) +
  `<rect x="${x}" y="${y + height - 14}" width="${width}" height="6" fill="${darker(fill)}" opacity=".25"/>` +
  icing(x, y, width, top);
const underline = (x, y, half, fill = c.ochre) => line(`M${x - half} ${y}H${x - 16}M${x + 16} ${y}H${x + half}`, fill, 1.4) +
  heart(x, y + 4, 0.6, c.terracotta);
const gull = (x, y, s) => line(`M${x - 10 * s} ${y - 4 * s}Q${x - 4 * s} ${y - 8 * s} ${x} ${y}` +
  `Q${x + 4 * s} ${y - 8 * s} ${x + 10 * s} ${y - 4 * s}`, c.ink, 1.6, 0.6);

/** A birthday: the cake. */
function taart() {
  const free = (x, y) => x > 30 && x < 410 && y > 96 && y < 610;
  return sheet(440, 640, '#fdf1dc') + '<ellipse cx="220" cy="350" rx="250" ry="290" fill="#fff9ec"/>' +
    confetti(23, 170, 440, 640, warm, free) +
    bunting(-12, 10, 225, 22, 24, 6, warm, 40) + bunting(215, 22, 452, 10, 24, 6, [...warm].reverse(), 40) +
    script(220, 150, 62, c.terracotta, 'Hartelijk') + script(220, 206, 58, c.terracotta, 'gefeliciteerd!') +
    sprig([[206, 232], [160, 240], [112, 226]], 7, 17, c.sage) + sprig([[234, 232], [280, 240], [328, 226]], 7, 17, c.sage) +
    heart(220, 238, 0.8, c.terracotta) +
    [172, 204, 236, 268].map((x, i) => cakeCandle(x, 274, warm[(i + 1) % 5])).join('') +
    tier(136, 308, 168, 58, '#f7d795', c.terracotta) + tier(100, 362, 240, 70, c.terracotta, c.blush) +
    times(6, (i) => `<circle cx="${124 + i * 38.4}" cy="410" r="5.5" fill="${lighter(c.ochre)}"/>`).join('') +
    times(4, (i) => heart(166 + i * 36, 351, 0.5, c.plum)).join('') +
    oval(220, 436, 150, 10, c.blue) + oval(220, 433, 150, 9, lighter(c.blue)) + shape('M180 440H260L250 462H190Z', c.blue) +
    oval(220, 463, 52, 6, c.blue) +
    [510, 548, 586].map((y) => dotted(74, y, 366)).join('');
}

/** An invitation. */
function uitnodiging() {
  const spray = sprig([[0, 0], [70, -30], [150, -22]], 10, 28, c.sage) + sprig([[0, 0], [40, 60], [30, 142]], 10, 28, c.sage) +
    sprig([[4, 6], [60, 30], [104, 26]], 6, 24, c.green) +
    flower(22, 14, 34, c.plum, 8) + flower(70, -2, 21, c.ochre, 7, c.terracotta) + flower(26, 66, 23, c.blush, 7);
  const rows = [['Wie?', 222], ['Wanneer?', 262], ['Hoe laat?', 302], ['Waar?', 342]];
  return sheet(640, 440, c.paper) +
    `<rect x="16" y="16" width="608" height="408" rx="12" fill="#fffdf7" stroke="${c.sage}" stroke-width="3"/>` +
    `<rect x="23" y="23" width="594" height="394" rx="8" fill="none" stroke="${c.ochre}"/>` +
    `<g transform="translate(34 46)">${spray}</g><g transform="translate(606 394) rotate(180)">${spray}</g>` +
    script(330, 122, 84, c.plum, 'Uitnodiging') + small(330, 158, 'Kom je ook? Wij vieren feest!', 'middle', 18) +
    `<path d="M200 178H310M350 178H460" stroke="${c.ochre}" stroke-width="1.4"/>` + heart(330, 182, 0.6, c.terracotta) +
    rows.map(([word, y]) => small(150, y, word, 'start', 19) + dotted(244, y, 500)).join('') +
    script(320, 396, 32, c.terracotta, 'Tot dan!');
}

/** A child is born: a stork over the clouds. */
function geboren() {
  const bank = [[20, 470, 66], [96, 452, 58], [176, 468, 62], [262, 450, 60], [346, 466, 64], [424, 454, 60]];
  return sheet(440, 640, '#bcdbe2') + dot(236, 286, 150, '#cfe6e8') + dot(236, 286, 112, '#fbeccb') +
    cloud(70, 204, 0.8, '#fff', 0.75) + cloud(378, 204, 0.62, '#fff', 0.75) +
    script(220, 126, 104, '#3f7386', 'Geboren') + place(176, 318, stork(), 0.92, -6) +
    each(bank, (x, y, r) => dot(x, y - 8, r, '#e4f1f2')) + each(bank, (x, y, r) => dot(x, y + 16, r, '#fffdf7')) +
    block(0, 474, 440, 166, '#fffdf7') + fields(64, 150, 376, [['Naam', 498], ['Datum', 544], ['Gewicht', 590]], 20);
}

/** A wedding: rings in a wreath. */
function trouwen() {
  const rose = '#b65a5c';
  return sheet(640, 440, '#f8ded2') + dot(192, 220, 168, '#fbeae0') + dot(192, 220, 122, '#fffaf3') +
    place(192, 220, wreath(138)) + place(192, 230, rings()) + heart(192, 170, 0.9, c.terracotta) +
    script(494, 122, 64, rose, 'Wij gaan') + script(494, 196, 80, rose, 'trouwen') + underline(492, 232, 88) +
    fields(386, 458, 606, [['Datum', 290], ['Tijd', 330], ['Plaats', 370]], 19);
}

/** An examination passed: the flag is out, and the bag hangs from its pole. */
function geslaagd() {
  const far = [[150, 'bell', '#e9cf9f'], [206, 'stairs', '#e3bd94'], [262, 'spout', '#ecd6ab'], [314, 'neck', '#e1c19a'],
    [372, 'stairs', '#ead0a4']];
  return sheet(440, 640, '#fae2ab') + dot(300, 300, 176, '#fceabf') + dot(300, 300, 116, '#fdf1d2') +
    confetti(57, 60, 440, 210, warm, (x, y) => x < 400 && x > 40 && y > 40 || x < 14 || x > 426 || y < 14) +
    `<g opacity=".55">${each(far, (x, gable, fill) => place(x, 478, canalHouse(54, 1, gable, fill, '#d9b98a'), 1.02))}</g>` +
    brickFront(132, 216, 500) + script(222, 134, 92, '#b4492e', 'Geslaagd!') +
    hangingFlag([206, 374.5], [314, 272], 98) + line('M128 448L398 193', '#7d5638', 7) +
    line('M127 446L396 192', '#b98757', 2.4) + dot(399, 192, 7.5, gold) +
    shape('M124 430L146 436L138 462L122 462Z', c.ink) + line('M376 214Q366 226 366 240M376 214Q378 228 368 240', c.ink, 3) +
    place(367, 326, schoolBag(c.blue), 0.8, 4) +
    shape('M0 492Q60 474 120 486T240 484T350 484T440 480V640H0Z', c.sage) +
    shape('M0 506Q110 486 220 500T440 496V640H0Z', '#fffdf4') + rules(70, 370, [536, 570, 604]);
}

/** A move: a van in its new street. */
function verhuisd() {
  const street = [[-10, 60, 2, 'stairs', '#c9785c', c.green], [53, 52, 1, 'bell', '#e3b778', c.terracotta],
    [107.5, 66, 2, 'spout', '#8fa89a', c.plum], [177, 52, 2, 'neck', '#d98f72', c.blue],
    [231.5, 64, 1, 'stairs', '#ecd3a6', c.green], [298.5, 54, 2, 'bell', '#a9869f', c.ochre],
    [355, 64, 2, 'cornice', '#c9785c', c.green], [422, 54, 1, 'spout', '#93aeb6', c.terracotta],
    [478.5, 60, 2, 'neck', '#e3b778', c.plum], [541.5, 52, 1, 'bell', '#8fa89a', c.terracotta],
    [596, 60, 2, 'stairs', '#d98f72', c.green]];
  const plant = block(-9, -18, 18, 18, c.terracotta, 3) +
    [-130, -108, -90, -72, -50].map((turn) => leaf(0, -16, 26, turn, c.green)).join('');
  return sheet(640, 440, '#fbe7d8') + cloud(70, 168, 0.74, '#fff', 0.85) + cloud(572, 158, 0.8, '#fff', 0.85) +
    script(320, 88, 76, '#3b6b58', 'Wij zijn verhuisd') + small(320, 132, 'Ons nieuwe adres:', 'middle', 19) +
    rules(170, 470, [172, 210]) +
    each(street, (x, w, floors, gable, fill, door) => place(x, 380, canalHouse(w, floors, gable, fill, door), 1.05)) +
    block(0, 380, 640, 60, '#b9b3a6') + block(0, 380, 640, 8, '#d8d1c2') +
    line('M40 412H110M500 434H610M20 434H60', '#cfc9bb', 3) +
    place(196, 422, van(c.terracotta)) + place(146, 422, removalBox(44, 32, heart(0, 0, 0.5, c.terracotta))) +
    place(150, 390, removalBox(30, 22)) +
    place(104, 422, plant, 1.1) + place(530, 424, cargoBike(), 0.9);
}

/** Valentine's: a letter from its envelope. */
function voorJou() {
  const rose = '#d9786c';
  const loose = [[40, 96, 0.9, -16], [402, 120, 1.1, 14], [34, 210, 0.6, 10], [408, 226, 0.7, -12], [46, 300, 1, -8],
    [398, 318, 0.9, 12], [30, 384, 0.5, 0], [60, 34, 0.6, 12], [384, 42, 0.7, -14], [412, 396, 0.5, 8]];
  return sheet(440, 640, '#f1b9ab') + each(loose, (x, y, size, turn) => heart(x, y, size, '#e7988a', turn)) +
    envelopeBack(36, 400, 368, 204, rose) + block(76, 84, 288, 480, '#fffaf3', 8) +
    block(84, 92, 272, 460, 'none', 5).replace('/>', ' stroke="#f1b9ab"/>') +
    mirrored(188, 75, bird(c.blue, '#f6d9b8'), 1.05) + place(252, 75, bird(c.terracotta, '#f6d9b8'), 1.05) +
    heart(220, 33, 0.9, '#c8402f') +
    script(220, 192, 76, '#c04a3c', 'Voor jou') + underline(220, 234, 92) + rules(112, 328, [278, 318, 358, 398]) +
    envelopePocket(36, 400, 368, 204, rose) + heart(220, 514, 2.1, '#c8402f') +
    line('M198 490Q200 480 210 480', '#fff', 3, 0.5);
}

/** A retirement: an empty deck chair by the sea. */
function pensioen() {
  const wave = (y, fill) => shape(`M-30 ${y}${times(18, () => 'q20 -7 40 0').join('')}V320H-30Z`, fill);
  const sail = shape('M-22 0H24L16 9H-16Z', '#a65a3d') + line('M0 0V-44', wood, 2) + shape('M3 -42Q20 -22 22 -5H3Z', cream) +
    shape('M-3 -38Q-15 -22 -17 -5H-3Z', c.ochre);
  const book = shape('M-24 -4L0 -10L26 -4L2 4Z', c.blue) + shape('M-22 -7L0 -13L24 -7L2 1Z', cream) +
    shape('M-22 -8L0 -14L24 -8L2 0Z', lighter(c.blue));
  return sheet(640, 440, '#fde3b4') + dot(430, 232, 120, '#fdecc9') + dot(430, 232, 76, '#fdf3da') + gull(92, 56, 1.1) +
    gull(124, 76, 0.8) + gull(596, 196, 0.9) +
    block(0, 236, 640, 90, '#8fc0c6') + place(564, 242, sail) + wave(250, '#7fb3bd') + wave(270, '#6fa3b3') +
    shape('M0 296Q160 276 320 294T640 288V440H0Z', '#f4f3e6') + shape('M0 306Q160 286 320 304T640 298V440H0Z', '#f7dfae') +
    oval(186, 412, 130, 12, '#e6c688') +
    place(112, 408, parasol(112, 206, [c.terracotta, cream]), 1, 6) + place(154, 406, deckChair(c.blue), 0.98) +
    place(70, 416, book) + place(272, 416, strawHat(), 0.8) +
    script(440, 88, 64, '#b4492e', 'Eindelijk met') + script(440, 166, 84, '#b4492e', 'pensioen') +
    rules(340, 604, [340, 374, 408]);
}

/** Condolence: a dandelion clock, and its seeds on the wind. */
function deelneming() {
  const tone = '#8d9294';
  const flight = [[166, 372, 22], [214, 332, 34], [258, 352, 48], [292, 296, 40], [330, 312, 58], [348, 244, 50],
    [378, 280, 66]];
  return sheet(440, 640, '#eef0ee') + block(18, 18, 404, 604, '#fafaf7', 6) +
    block(26, 26, 388, 588, 'none', 4).replace('/>', ' stroke="#c9cecd"/>') +
    script(220, 116, 54, '#5d6365', 'Met oprechte') + script(220, 176, 54, '#5d6365', 'deelneming') +
    line('M96 612Q84 520 104 436M128 612Q140 560 150 524', '#a3aba3', 2.4) +
    shape('M104 612C70 600 48 570 44 530C66 556 92 578 104 612Z', '#b9c2b8') +
    shape('M110 612C120 580 150 566 186 556C172 584 148 604 110 612Z', '#c6cdc4') +
    place(104, 430, dandelion(58, tone, (turn) => turn > 36 && turn < 96)) + place(152, 518, dandelion(32, tone)) +
    each(flight, (x, y, turn) => place(x, y, seed(tone), 0.95, turn));
}

/** Get well: a bear in bed. */
function beterschap() {
  const outline = 'M84 330Q170 306 270 322Q420 336 520 312Q590 296 612 330V440H70Z';
  return sheet(640, 440, '#cbe3d8') + times(16, (i) => block(i * 40, 0, 20, 440, '#d3e8de')).join('') +
    line('M70 210Q60 150 92 128', c.ink, 1.2, 0.6) + heart(92, 112, 3.4, c.terracotta) +
    line('M68 86Q66 72 78 66', '#fff', 4, 0.5) +
    block(36, 208, 42, 240, wood, 16) + block(36, 208, 16, 240, lighter(wood), 8) + block(600, 300, 28, 150, wood, 12) +
    shape('M70 250Q76 222 120 226Q200 220 232 236Q252 290 236 336Q150 350 78 336Q62 300 70 250Z', '#fffdf7') +
    line('M90 300Q84 270 92 246', '#dfe6e0', 3) +
    oval(158, 338, 76, 42, '#a97143') + place(158, 260, illBear()) + quilt(outline, 60, 292, 13, 4, 44) +
    shape('M84 330Q170 306 270 322L274 344Q170 328 82 352Z', '#fffdf7') +
    line('M96 326Q104 346 130 348M220 326Q212 346 186 348', '#b07a4a', 27) + place(158, 366, cup(c.ochre), 0.82) +
    each([[132, 350], [184, 350]], (x, y) => oval(x, y, 16, 14, '#c89263')) +
    script(436, 92, 66, '#3b6b58', 'Van harte') + script(436, 164, 78, '#3b6b58', 'beterschap') +
    rules(290, 590, [212, 248, 284]);
}

/** King's day: a stall at the flea market. */
function koningsdag() {
  const rays = times(14, (i) => {
    const [a, b] = [((i + 0.25) * Math.PI) / 7, ((i + 0.75) * Math.PI) / 7];
    const end = (angle) => `L${(220 + 640 * Math.cos(angle)).toFixed(0)} ${(340 + 640 * Math.sin(angle)).toFixed(0)}`;
    return shape(`M220 340${end(a)}${end(b)}Z`, '#f29c45');
  }).join('');
  const flags = ['#c8402f', cream, '#3c5f93'];
  return sheet(440, 640, orange) + rays + bunting(-12, 8, 225, 18, 20, 6, flags, 34) +
    bunting(215, 18, 452, 8, 20, 6, [...flags].reverse(), 34) +
    script(220, 138, 84, cream, 'Koningsdag') + script(220, 190, 34, '#5c2a10', 'Kom naar onze vrijmarkt!') +
    place(220, 476, marketStall(atticWares())) + place(220, 254, crown(), 0.6) +
    shape('M0 482Q110 468 220 480T440 478V640H0Z', '#fff6e4') +
    fields(70, 150, 372, [['Datum', 524], ['Tijd', 562], ['Waar', 600]], 20);
}

/** Easter: a rabbit behind a basket of eggs. */
function pasen() {
  const roll = dice(33);
  const eggs = [[-58, -88, -24, c.terracotta, 0, cream], [-22, -98, -8, c.blue, 1, gold],
    [20, -98, 10, c.ochre, 2, c.terracotta], [58, -88, 24, c.plum, 3, gold]];
  const loose = [[330, 402, -62, c.ochre, 1, c.terracotta], [156, 396, -14, c.blue, 3, gold],
    [236, 404, 58, c.terracotta, 0, cream]];
  const painted = (x, y, turn, fill, paint, other) => place(x, y, egg(fill, paint, other), 1, turn);
  return eggClip + sheet(640, 440, '#fbedb0') + dot(468, 226, 176, '#fdf4cc') + dot(468, 226, 124, '#fff9e2') +
    shape('M0 356Q160 326 330 352T640 340V440H0Z', '#b7cf9a') + grass(0, 640, 372, 18, '#9dbd84', roll) +
    place(468, 330, rabbit(), 1.5) +
    oval(476, 397, 84, 7, '#7fa76b') + place(468, 396, each(eggs, painted) + basket()) +
    each([[34, 92, -10], [62, 118, 8], [562, 104, -8], [588, 130, 10]],
      (x, height, turn) => place(x, 396, daffodil(height, turn))) +
    each([[92, 84, c.terracotta], [614, 84, c.terracotta], [372, 66, c.plum]],
      (x, height, fill) => place(x, 398, tulip(height, fill), 0.9)) +
    grass(0, 640, 414, 20, '#7fa76b', roll) +
    each(loose, (x, y, ...rest) => oval(x + 4, y + 20, 24, 5, '#5f8a52') + painted(x, y, ...rest)) +
    script(196, 108, 84, '#4f7f4a', 'Vrolijk') + script(196, 186, 92, '#4f7f4a', 'Pasen') +
    rules(124, 324, [236, 270, 304]);
}

/** The eve of Saint Nicholas: the steamer has come, and the presents stand on the quay. */
function pakjesavond() {
  const row = [[-6, 56, 2, 'stairs', '#5b4a70'], [52, 50, 3, 'bell', '#6a4f6b'], [104, 62, 2, 'spout', '#4c4a78'],
    [168, 52, 2, 'neck', '#70506a'], [222, 62, 3, 'stairs', '#554a74'], [286, 50, 2, 'bell', '#664c6e'],
    [338, 58, 2, 'spout', '#4f4b79'], [398, 54, 3, 'neck', '#6a4f6b']];
  const roll = dice(12);
  const stars = times(60, () => {
    const [x, y, size] = [14 + roll() * 412, 14 + roll() * 220, 0.8 + roll() * 1.2];
    return y > 40 && y < 144 ? '' : dot(x.toFixed(0), y.toFixed(0), size.toFixed(1), '#fdf0cf', 0.8);
  }).join('');
  const book = block(-44, -20, 88, 20, '#8c2419', 4) + block(-38, -17, 84, 13, cream, 2) +
    line('M-34 -12H44M-34 -8H44', '#dccdb6', 1) + block(-44, -22, 88, 5, red, 2.5) + block(-44, -4, 88, 5, red, 2.5);
  const quay = place(306, 448, staff(), 1.05, 8) + place(342, 452, gift(70, 52, c.green, gold)) +
    place(398, 452, gift(44, 74, c.plum, cream)) +
    place(268, 452, book) + place(266, 430, mitre(), 0.86) + place(330, 398, gift(46, 34, c.ochre, red)) +
    place(42, 452, gift(46, 40, c.ochre, red)) + place(86, 452, gift(34, 58, c.blue, cream));
  return sheet(440, 640, '#2f3a63') + stars + dot(330, 232, 84, '#46507c') + dot(330, 232, 60, '#fbe9b8') +
    dot(312, 216, 9, '#f2d995') + dot(348, 246, 13, '#f2d995') + dot(340, 206, 6, '#f2d995') +
    block(0, 286, 440, 98, '#423c62') +
    each(row, (x, w, floors, gable, fill) =>
      place(x, 384, byNight(canalHouse(w, floors, gable, fill, '#3a2c44'), '#f8d88c', '#cfc3c4'))) +
    block(0, 382, 440, 80, '#3f5d86') + line('M20 394H70M110 404H150M240 392H300M330 404H410M196 414H230', '#6f8db0', 2, 0.8) +
    place(168, 416, steamer(), 0.84) + line('M70 424Q150 432 240 424', '#8fb0cc', 2.4, 0.8) +
    block(0, 440, 440, 200, '#8a6f68') + block(0, 440, 440, 8, '#a3877d') + quay +
    script(222, 112, 82, gold, 'Pak<tspan dx="-6">j</tspan>esavond') +
    block(40, 470, 360, 150, '#fdf3dc', 10) + rules(76, 364, [512, 550, 588]);
}

/** Thanks: a bouquet. */
function bedankt() {
  return sheet(640, 440, '#e2cfe0') + dot(478, 212, 190, '#eadbe8') + dot(478, 212, 138, '#f4eaf1') +
    place(472, 414, bouquet(), 1.04, 6) +
    script(186, 148, 98, '#77496f', 'Bedankt!') + underline(180, 188, 92, '#b98bb2') + rules(60, 310, [240, 282, 324, 366]);
}

/** Christmas: the tree and what lies under it. */
function kerst() {
  const snow = dice(8);
  const specks = times(120, () => {
    const [x, y] = [snow() * 440, snow() * 440];
    const heading = x > 70 && x < 380 && y > 30 && y < 180;
    return heading ? '' : dot(x.toFixed(0), y.toFixed(0), (0.8 + snow() * 1.4).toFixed(1), '#fff', 0.25);
  }).join('');
  return sheet(440, 640, '#a63a31') + specks + dot(220, 344, 172, '#b64a3e') + dot(220, 344, 124, '#c25a4a') +
    script(220, 84, 66, cream, 'Fijne') + script(220, 150, 74, cream, 'kerstdagen') +
    shape('M0 470Q110 452 220 462T440 460V640H0Z', '#fdf3e0') + place(220, 474, christmasTree()) +
    place(96, 500, gift(62, 46, c.ochre, red)) + place(140, 506, gift(40, 30, c.blue, cream)) +
    place(326, 502, gift(50, 66, c.plum, gold)) + place(368, 506, gift(42, 34, c.sage, red)) +
    rules(70, 370, [546, 578, 610]);
}

/** New year: rockets over the town, dough balls and flutes on the sill. */
function nieuwjaar() {
  const town = [[-4, 62, 1, 'stairs'], [60, 54, 2, 'bell'], [116, 62, 1, 'spout'], [180, 62, 1, 'stairs'], [244, 54, 1, 'bell'],
    [300, 62, 1, 'spout'], [364, 54, 1, 'neck'], [420, 62, 1, 'stairs'], [484, 54, 1, 'bell'], [540, 62, 1, 'spout'],
    [604, 50, 1, 'stairs']];
  const rockets = [[86, 116, 66, c.terracotta, 16], [556, 104, 66, gold, 16], [156, 210, 20, gold, 10],
    [514, 194, 20, c.blue, 10]];
  return sheet(640, 440, '#1f2f4a') +
    each(rockets, (x, y, radius, fill, rays) => line(`M${x} ${y + 6}Q${x + 8} ${y + 90} ${x + 2} 330`, fill, 1.2, 0.35) +
      place(x, y, burst(radius, fill, rays))) +
    each(town, (x, w, floors, gable, i) =>
      place(x, 330, byNight(canalHouse(w, floors, gable, i % 2 ? '#2c3d5a' : '#33456a', '#223049'), '#e6bf70', '#34445f'))) +
    script(320, 104, 72, gold, 'Gelukk<tspan dx="3">i</tspan><tspan dx="5">g</tspan>') +
    script(320, 180, 84, gold, 'nieuwjaar') +
    block(0, 322, 640, 118, '#fdf3e0') + block(0, 322, 640, 7, '#fff') + block(0, 329, 640, 4, '#e3d3b6') +
    rules(270, 604, [368, 402]) +
    place(96, 412, doughBalls(), 0.95) + place(192, 412, flute(), 1.2, -5) + place(226, 416, flute(), 1.2, 5);
}

/** In the order of their numbers: size and drawing. */
export const templates = [
  [upright, taart()], [lying, uitnodiging()], [upright, geboren()], [lying, trouwen()],
  [upright, geslaagd()], [lying, verhuisd()], [upright, voorJou()], [lying, pensioen()],
  [upright, deelneming()], [lying, beterschap()], [upright, koningsdag()], [lying, pasen()],
  [upright, pakjesavond()], [lying, bedankt()], [upright, kerst()], [lying, nieuwjaar()],
];
