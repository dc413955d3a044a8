import SwiftUI

// SVG
struct Group1: View {

  static let intrinsicSize = CGSize(width: 20, height: 20)

  // Modifiers and Statics

  static let noStops = LinearGradient(
    gradient: .init(colors: [
      // No gradient stops defined/detected.
    ]),
    startPoint: .leading, endPoint: .trailing
  )

  static let oneStop = LinearGradient(
    gradient: .init(colors: [
      // A gradient w/ just a single stop?
      .black
    ]),
    startPoint: .leading, endPoint: .trailing
  )

  static let threeWithout = LinearGradient(
    gradient: .init(colors: [
      .black, .black, .black
    ]),
    startPoint: .leading, endPoint: .trailing
  )

  static let firstGiven = LinearGradient(
    gradient: .init(stops: [
      .init(color: .black, location: 0.1),
      .init(color: .black, location: 0.3333),
      .init(color: .black, location: 0.6667),
      .init(color: .black, location: 1)
    ]),
    startPoint: .leading, endPoint: .trailing
  )

  static let unclamped = LinearGradient(
    gradient: .init(stops: [
      .init(color: .black, location: 2), .init(color: .black, location: -1)
    ]),
    startPoint: .leading, endPoint: .trailing
  )

  static let otherUnit = LinearGradient(
    gradient: .init(stops: [
      .init(color: .black, location: 0.2), .init(color: .black, location: 1)
    ]),
    startPoint: .leading, endPoint: .trailing
  )

  static let unsorted = LinearGradient(
    gradient: .init(stops: [
      .init(color: .black, location: 0.8),
      .init(color: .red.opacity(50), location: 0.2)
    ]),
    startPoint: .leading, endPoint: .trailing
  )

  static let numbers = LinearGradient(
    gradient: .init(colors: [
      // No gradient stops defined/detected.
    ]),
    startPoint: .topLeading, endPoint: .bottomTrailing
  )

  static let fractions = LinearGradient(
    gradient: .init(colors: [
      // No gradient stops defined/detected.
    ]),
    startPoint: .init(x: 0.1, y: 0.7), endPoint: .init(x: 0.3, y: 0.9)
  )

  static let pixel = LinearGradient(
    gradient: .init(colors: [
      // No gradient stops defined/detected.
    ]),
    startPoint: .init(x: 0.5, y: 0.5), endPoint: .topLeading
  )

  static let rotated = LinearGradient(
    gradient: .init(colors: [
      // No gradient stops defined/detected.
    ]),
    startPoint: .top, endPoint: .bottom
  )

  static let listOrder = LinearGradient(
    gradient: .init(colors: [
      // No gradient stops defined/detected.
    ]),
    startPoint: .init(x: 0.5, y: 0.5), endPoint: .init(x: 0.5, y: 1)
  )

  static let radial = RadialGradient(
    gradient: .init(colors: [
      // No gradient stops defined/detected.
    ]),
    center: .init(x: 0.25, y: 0.75), startRadius: 72, endRadius: 3
  )

  static let radialDefaults = RadialGradient(
    gradient: .init(colors: [
      // No gradient stops defined/detected.
    ]),
    center: .init(x: 0.5, y: 0.5), startRadius: 0, endRadius: 0
  )

  static let paint_1 = LinearGradient(
    gradient: .init(colors: [
      // No gradient stops defined/detected.
    ]),
    startPoint: .leading, endPoint: .trailing
  )

  static let outer = LinearGradient(
    gradient: .init(colors: [
      // No gradient stops defined/detected.
    ]),
    startPoint: .leading, endPoint: .trailing
  )

  static let shared = LinearGradient(
    gradient: .init(colors: [
      // No gradient stops defined/detected.
    ]),
    startPoint: .leading, endPoint: .trailing
  )

  static let later = LinearGradient(
    gradient: .init(colors: [
      // No gradient stops defined/detected.
    ]),
    startPoint: .leading, endPoint: .trailing
  )

  // Nested Groups and Shapes

  struct Reactangle1: View {

    static let intrinsicSize = CGSize(width: 1, height: 1)

    var body: some View {
      ZStack {
        Rectangle()
          .fill(Group1.noStops)
        Rectangle()
          .stroke(Group1.oneStop, style: .init())
      }
    }
  }

  struct Reactangle2: View {

    static let intrinsicSize = CGSize(width: 1, height: 1)

    var body: some View {
      ZStack {
        Rectangle()
          .fill(Group1.threeWithout)
        Rectangle()
          .stroke(Group1.firstGiven, style: .init())
      }
    }
  }

  struct Reactangle3: View {

    static let intrinsicSize = CGSize(width: 1, height: 1)

    var body: some View {
      ZStack {
        Rectangle()
          .fill(Group1.unclamped)
        Rectangle()
          .stroke(Group1.otherUnit, style: .init())
      }
    }
  }

  struct Reactangle4: View {

    static let intrinsicSize = CGSize(width: 1, height: 1)

    var body: some View {
      ZStack {
        Rectangle()
          .fill(Group1.unsorted)
        Rectangle()
          .stroke(Group1.numbers, style: .init())
      }
    }
  }

  struct Reactangle5: View {

    static let intrinsicSize = CGSize(width: 1, height: 1)

    var body: some View {
      ZStack {
        Rectangle()
          .fill(Group1.fractions)
        Rectangle()
          .stroke(Group1.pixel, style: .init())
      }
    }
  }

  struct Reactangle6: View {

    static let intrinsicSize = CGSize(width: 1, height: 1)

    var body: some View {
      ZStack {
        Rectangle()
          .fill(Group1.rotated)
        Rectangle()
          .stroke(Group1.listOrder, style: .init())
      }
    }
  }

  struct Reactangle7: View {

    static let intrinsicSize = CGSize(width: 1, height: 1)

    var body: some View {
      ZStack {
        Rectangle()
          .fill(Group1.radial)
        Rectangle()
          .stroke(Group1.radialDefaults, style: .init())
      }
    }
  }

  struct Reactangle8: View {

    static let intrinsicSize = CGSize(width: 1, height: 1)

    var body: some View {
      Rectangle()
        .fill(Group1.paint_1)
    }
  }

  // SVG
  struct Group2: View {

    // Modifiers and Statics

    static let inner = LinearGradient(
      gradient: .init(colors: [
        // No gradient stops defined/detected.
      ]),
      startPoint: .leading, endPoint: .trailing
    )

    // Nested Groups and Shapes

    struct Circle1: View {

      static let intrinsicSize = CGSize(width: 2, height: 2)
      static let origin        = CGPoint(x: -1, y: -1)

      var body: some View {
        Circle()
          .fill(Group1.outer)
      }
    }

    struct Circle2: View {

      static let intrinsicSize = CGSize(width: 2, height: 2)
      static let origin        = CGPoint(x: -1, y: -1)

      var body: some View {
        Circle()
          .fill(Group2.inner)
      }
    }

    struct Circle3: View {

      static let intrinsicSize = CGSize(width: 2, height: 2)
      static let origin        = CGPoint(x: -1, y: -1)

      var body: some View {
        Circle()
          .fill(Group1.shared)
      }
    }

    var body: some View {
      ZStack(alignment: .topLeading) {
        Circle1()
          .frame(width: 2, height: 2, alignment: .topLeading)
          .padding(.leading, -1)
          .padding(.top, -1)
        Circle2()
          .frame(width: 2, height: 2, alignment: .topLeading)
          .padding(.leading, -1)
          .padding(.top, -1)
        Circle3()
          .frame(width: 2, height: 2, alignment: .topLeading)
          .padding(.leading, -1)
          .padding(.top, -1)
      }
    }
  }

  struct Circle4: View {

    static let intrinsicSize = CGSize(width: 2, height: 2)
    static let origin        = CGPoint(x: -1, y: -1)

    var body: some View {
      Circle()
    }
  }

  struct Circle5: View {

    static let intrinsicSize = CGSize(width: 2, height: 2)
    static let origin        = CGPoint(x: -1, y: -1)

    var body: some View {
      Circle()
        .fill(Group1.shared)
    }
  }

  struct Circle6: View {

    static let intrinsicSize = CGSize(width: 2, height: 2)
    static let origin        = CGPoint(x: -1, y: -1)

    var body: some View {
      Circle()
        .fill(Group1.later)
    }
  }

  var isResizable = false
  func resizable() -> Self { Self(isResizable: true) }

  var body: some View {
    if isResizable {
      GeometryReader { proxy in
        ZStack(alignment: .topLeading) {
          Reactangle1()
            .frame(width: 1, height: 1, alignment: .topLeading)
          Reactangle2()
            .frame(width: 1, height: 1, alignment: .topLeading)
          Reactangle3()
            .frame(width: 1, height: 1, alignment: .topLeading)
          Reactangle4()
            .frame(width: 1, height: 1, alignment: .topLeading)
          Reactangle5()
            .frame(width: 1, height: 1, alignment: .topLeading)
          Reactangle6()
            .frame(width: 1, height: 1, alignment: .topLeading)
          Reactangle7()
            .frame(width: 1, height: 1, alignment: .topLeading)
          Reactangle8()
            .frame(width: 1, height: 1, alignment: .topLeading)
          Group2()
          Circle4()
            .frame(width: 2, height: 2, alignment: .topLeading)
            .padding(.leading, -1)
            .padding(.top, -1)
          Circle5()
            .frame(width: 2, height: 2, alignment: .topLeading)
            .padding(.leading, -1)
            .padding(.top, -1)
          Circle6()
            .frame(width: 2, height: 2, alignment: .topLeading)
            .padding(.leading, -1)
            .padding(.top, -1)
        }
        .frame(width: 20, height: 20,
               alignment: .topLeading)
        .scaleEffect(x: proxy.size.width  / 20,
                     y: proxy.size.height / 20)
        .frame(width: proxy.size.width, height: proxy.size.height)
      }
    }
    else {
      ZStack(alignment: .topLeading) {
        Reactangle1()
          .frame(width: 1, height: 1, alignment: .topLeading)
        Reactangle2()
          .frame(width: 1, height: 1, alignment: .topLeading)
        Reactangle3()
          .frame(width: 1, height: 1, alignment: .topLeading)
        Reactangle4()
          .frame(width: 1, height: 1, alignment: .topLeading)
        Reactangle5()
          .frame(width: 1, height: 1, alignment: .topLeading)
        Reactangle6()
          .frame(width: 1, height: 1, alignment: .topLeading)
        Reactangle7()
          .frame(width: 1, height: 1, alignment: .topLeading)
        Reactangle8()
          .frame(width: 1, height: 1, alignment: .topLeading)
        Group2()
        Circle4()
          .frame(width: 2, height: 2, alignment: .topLeading)
          .padding(.leading, -1)
          .padding(.top, -1)
        Circle5()
          .frame(width: 2, height: 2, alignment: .topLeading)
          .padding(.leading, -1)
          .padding(.top, -1)
        Circle6()
          .frame(width: 2, height: 2, alignment: .topLeading)
          .padding(.leading, -1)
          .padding(.top, -1)
      }
      .frame(width: 20, height: 20)
    }
  }
}

struct Group1_Previews: PreviewProvider {

  static var previews: some View {
    VStack {
      Group1()
        .resizable()
        .frame(width  : 12 * Group1.intrinsicSize.width,
               height : 12 * Group1.intrinsicSize.height)
        .background(Color.clear.border(Color.green))
        .padding()
      Text("Size: 20.0x20.0").padding(.bottom)
    }
  }
}
